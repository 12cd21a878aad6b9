#include "hosts/qt/panel/DetachedPanel.h"

#include <QCloseEvent>

namespace zorvane {

DetachedPanel::DetachedPanel(QWidget& plate) : QWidget(&plate, Qt::Tool) {}

DetachedPanel::~DetachedPanel() { emit going(); }

void DetachedPanel::Design(QSize size) {
    if (size == design_) return;
    design_ = size;
    setMinimumWidth(size.width());
    updateGeometry();
}

bool DetachedPanel::event(QEvent* event) {
    const bool done = QWidget::event(event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::ParentChange) emit placed();
    return done;
}

void DetachedPanel::closeEvent(QCloseEvent* event) {
    emit closed();
    event->accept();
}

} // namespace zorvane
