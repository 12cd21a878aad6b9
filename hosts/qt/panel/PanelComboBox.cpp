#include "hosts/qt/panel/PanelComboBox.h"

#include <QWheelEvent>

namespace zorvane {

PanelComboBox::PanelComboBox(QWidget* parent) : QComboBox(parent) {
    setFocusPolicy(Qt::StrongFocus);
}

void PanelComboBox::wheelEvent(QWheelEvent* event) {
    if (hasFocus()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

} // namespace zorvane
