#include "hosts/qt/panel/PanelFrame.h"

#include <QKeyEvent>
#include <QPainter>

namespace zorvane {

// Styles draw frames that hardly show over wells, and put the title on the frame.
void PanelFrame::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(kTitleLeft, 1, width() - 2 * kTitleLeft, kTitleHeight),
                     Qt::AlignVCenter | Qt::AlignLeft | Qt::AlignAbsolute | Qt::TextShowMnemonic,
                     title());
}

void PanelFrame::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        emit escapePressed();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        emit enterPressed();
    }
    event->accept();
}

void PanelFrame::keyReleaseEvent(QKeyEvent* event) { event->accept(); }

} // namespace zorvane
