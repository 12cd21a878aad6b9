#include "hosts/qt/panel/ThinFrame.h"

#include <QPainter>
#include <QWidget>

namespace zorvane {

void PaintThinFrame(QPainter& painter, const QWidget& widget) {
    const auto role = widget.hasFocus() ? QPalette::Highlight : QPalette::Mid;
    painter.setPen(widget.palette().color(role));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(widget.rect().adjusted(0, 0, -1, -1));
}

} // namespace zorvane
