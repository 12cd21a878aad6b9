#include "hosts/qt/input/PlateInput.h"

#include "hosts/qt/PlateWidget.h"
#include "hosts/qt/StepRunner.h"
#include "hosts/qt/Units.h"
#include "hosts/qt/WidgetPainter.h"
#include "hosts/qt/aids/PlateHints.h"
#include "hosts/qt/input/InputCodes.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextDocument>
#include <QToolTip>

namespace zorvane {

namespace {

/// A place of the widget in drawing units.
InputRouter::Spot SpotAt(QPointF position) {
    return {ToUnits(position.x()), ToUnits(position.y())};
}

} // namespace

PlateInput::PlateInput(PlateWidget& widget, Plate& plate, WidgetPainter& painter, StepRunner& steps)
    : widget_(widget), plate_(plate), painter_(painter), steps_(steps), router_(plate, *this),
      aids_(widget, plate, steps) {}

Integer PlateInput::WellAt(QPointF position) const {
    const auto [x, y] = SpotAt(position);
    return router_.WellAt(x, y);
}

bool PlateInput::IsOverPlate(QPointF position) const {
    const auto [x, y] = SpotAt(position);
    return router_.PartAt(x, y) == InputRouter::Part::PlateArea;
}

void PlateInput::Press(const QMouseEvent& event) {
    const auto [x, y] = SpotAt(event.position());
    router_.Press(ButtonCode(event.button()), ShiftCodes(event.modifiers()), x, y);
}

void PlateInput::DoubleClick(const QMouseEvent& event) {
    const auto [x, y] = SpotAt(event.position());
    router_.DoubleClick(ButtonCode(event.button()), ShiftCodes(event.modifiers()), x, y);
}

void PlateInput::Move(const QMouseEvent& event) {
    const auto [x, y] = SpotAt(event.position());
    router_.Move(ButtonCodes(event.buttons()), ShiftCodes(event.modifiers()), x, y);
    const bool overPlate = IsOverPlate(event.position());
    const bool heldOnPlate = router_.Held() == InputRouter::Part::PlateArea;
    if (heldOnPlate || (overPlate && !InGesture())) painter_.HoverOver(WellAt(event.position()));
    ShowPointer(heldOnPlate || overPlate);
}

void PlateInput::Release(const QMouseEvent& event) {
    const auto [x, y] = SpotAt(event.position());
    router_.Release(ButtonCode(event.button()), ButtonCodes(event.buttons()),
                    ShiftCodes(event.modifiers()), x, y);
}

void PlateInput::Leave() {
    ShowPointer(false);
    painter_.HoverOver(-1);
}

void PlateInput::KeyPress(QKeyEvent& event) {
    painter_.ShowFocusRing(true);
    if (aids_.TakesKey(event)) return;
    const Integer shift = ShiftCodes(event.modifiers());
    const Integer from = plate_.CurrentWell();
    const bool isArrow = router_.KeyDown(KeyCode(event.key()), CharacterCode(event.text()), shift);
    if (isArrow) aids_.Moved(from, shift);
    ShowPointer(widget_.underMouse());
    event.setAccepted(isArrow);
}

void PlateInput::KeyRelease(QKeyEvent& event) {
    router_.KeyUp(KeyCode(event.key()), ShiftCodes(event.modifiers()));
    ShowPointer(widget_.underMouse());
    event.ignore();
}

void PlateInput::Attempt(const std::function<void()>& call) { steps_.Run(call); }

Boolean PlateInput::AnswerPress(Integer button, Integer shift, InputRouter::Spot at) {
    if (aids_.TakesPress(button, shift, at)) return true;
    painter_.FitOverlay();
    return false;
}

// Whatever went wrong on the way, no outline outlives its gesture.
void PlateInput::GestureEnded() { painter_.WipeOutlines(); }

void PlateInput::ShowPointer(bool overPlate) {
    const PointerShape shape = overPlate ? plate_.Elements().platePointer : PointerShape::Standard;
    if (shape == PointerShape::Standard) {
        widget_.unsetCursor();
    } else {
        widget_.setCursor(shape == PointerShape::MoveArrows ? Qt::SizeAllCursor
                                                            : Qt::DragCopyCursor);
    }
}

void PlateInput::ShowToolTip(const QHelpEvent& event) {
    QString text = IsOverPlate(event.pos()) ? ToolTip() : QString();
    // Hosts' texts are shown as they are, also where they look like markup.
    if (Qt::mightBeRichText(text))
        text = text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
    QToolTip::showText(event.globalPos(), text, &widget_);
}

QString PlateInput::ToolTip() const {
    return widget_.aids().testFlag(PlateWidget::Aid::RichToolTips)
               ? DescriptionOf(plate_, painter_.Hovered())
               : QString::fromStdString(plate_.Elements().plateToolTip);
}

} // namespace zorvane
