#include "hosts/qt/panel/RowEdit.h"

#include "hosts/qt/panel/ThinFrame.h"

#include <QFocusEvent>
#include <QPainter>

#include <limits>

namespace zorvane {

RowEdit::RowEdit(QWidget* parent) : QLineEdit(parent) {
    setFrame(false);
    setMaxLength(std::numeric_limits<int>::max()); // a text that is cut could not be typed in
    setTextMargins(kThinFrameMargin - 1, 0, kThinFrameMargin - 1, 0);
}

void RowEdit::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    PaintThinFrame(painter, *this);
}

void RowEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    emit focusGained();
}

void RowEdit::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason) emit focusLost();
    update();
}

} // namespace zorvane
