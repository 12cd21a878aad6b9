#include "hosts/qt/panel/CompactComboBox.h"

#include "hosts/qt/panel/ThinFrame.h"

#include <QAbstractItemView>
#include <QPainter>

#include <algorithm>

namespace zorvane {

namespace {

constexpr int kArrowRoom = 10;

void PaintArrow(QPainter& painter, const QColor& color, QPointF tip) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const QPointF arrow[] = {tip, tip + QPointF(-3, -4), tip + QPointF(3, -4)};
    painter.drawPolygon(arrow, 3);
    painter.restore();
}

} // namespace

void CompactComboBox::showPopup() {
    view()->setMinimumWidth(std::max(view()->sizeHintForColumn(0) + 2 * kArrowRoom, width()));
    PanelComboBox::showPopup();
}

void CompactComboBox::paintEvent(QPaintEvent*) {
    const QColor textColor = palette().color(QPalette::ButtonText);
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Button));
    painter.setPen(textColor);
    const QRect text = rect().adjusted(kThinFrameMargin + 1, 0, -kArrowRoom, 0);
    painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft | Qt::AlignAbsolute,
                     fontMetrics().elidedText(currentText(), Qt::ElideRight, text.width()));
    PaintArrow(painter, textColor, {width() - kArrowRoom / 2.0, height() / 2.0 + 2});
    PaintThinFrame(painter, *this);
}

} // namespace zorvane
