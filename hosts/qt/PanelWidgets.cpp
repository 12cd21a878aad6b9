#include "hosts/qt/PanelWidgets.h"

#include "hosts/qt/QtPalette.h"
#include "hosts/qt/Units.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <limits>

namespace zorvane {

namespace {

constexpr int kTextMargin = 2;
constexpr int kArrowRoom = 10;

/// A frame one pixel thin, in the colour of the focus while the widget has it.
void PaintFrame(QWidget& widget, QPainter& painter) {
    const auto role = widget.hasFocus() ? QPalette::Highlight : QPalette::Mid;
    painter.setPen(widget.palette().color(role));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(widget.rect().adjusted(0, 0, -1, -1));
}

} // namespace

// Styles draw frames that are hardly seen over wells, and titles that stand on them.
void PanelBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(kTitleLeft, 1, width() - 2 * kTitleLeft, kTitleHeight),
                     Qt::AlignVCenter | Qt::TextShowMnemonic, title());
}

void PanelBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        onEscape();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        onEnter();
    }
    event->accept();
}

void PanelBox::keyReleaseEvent(QKeyEvent* event) { event->accept(); }

RowEdit::RowEdit(QWidget* parent) : QLineEdit(parent) {
    setFrame(false);
    setMaxLength(std::numeric_limits<int>::max()); // a text that is cut could not be typed in
    setTextMargins(kTextMargin - 1, 0, kTextMargin - 1, 0);
}

void RowEdit::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    PaintFrame(*this, painter);
}

void RowEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    onFocus(true);
}

// While the row's own menu is open, the row is still the one that is worked on.
void RowEdit::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason) onFocus(false);
    update();
}

CalmList::CalmList(QWidget* parent) : QComboBox(parent) { setFocusPolicy(Qt::StrongFocus); }

void CalmList::wheelEvent(QWheelEvent* event) {
    hasFocus() ? QComboBox::wheelEvent(event) : event->ignore();
}

void SlimList::showPopup() {
    view()->setMinimumWidth(std::max(view()->sizeHintForColumn(0) + 2 * kArrowRoom, width()));
    QComboBox::showPopup();
}

void SlimList::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Button));
    painter.setPen(palette().color(QPalette::ButtonText));
    const QRect text = rect().adjusted(kTextMargin + 1, 0, -kArrowRoom, 0);
    painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft,
                     fontMetrics().elidedText(currentText(), Qt::ElideRight, text.width()));

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::ButtonText));
    const QPointF tip(width() - kArrowRoom / 2.0, height() / 2.0 + 2);
    const QPointF arrow[] = {tip, tip + QPointF(-3, -4), tip + QPointF(3, -4)};
    painter.drawPolygon(arrow, 3);
    painter.restore();
    PaintFrame(*this, painter);
}

void StylePreview::Show(const Shape& rim, const Shape& well, const SystemPalette& colors) {
    const QRectF place = ToPixels(rim.box);
    const auto sample = [&](const Shape& shape) {
        return Sample{ToPixels(shape.box).translated(-place.topLeft()),
                      ToColor(Resolve(shape.fill, colors)), shape.kind == ShapeKind::Oval};
    };
    const Sample newRim = sample(rim);
    const Sample newWell = sample(well);
    if (newRim == rim_ && newWell == well_) return;
    rim_ = newRim;
    well_ = newWell;
    update();
}

void StylePreview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 1));
    for (const Sample& sample : {rim_, well_}) {
        const QRectF box = sample.box.adjusted(0.5, 0.5, -0.5, -0.5);
        painter.setBrush(sample.fill);
        sample.round ? painter.drawEllipse(box) : painter.drawRect(box);
    }
}

} // namespace zorvane
