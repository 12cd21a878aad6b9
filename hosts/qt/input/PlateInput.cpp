#include "hosts/qt/input/PlateInput.h"

#include "hosts/qt/PlateWidget.h"
#include "hosts/qt/Units.h"
#include "hosts/qt/WidgetPainter.h"
#include "hosts/qt/aids/PlateHints.h"
#include "hosts/qt/input/InputCodes.h"
#include "hosts/qt/widget/PlateSignals.h"
#include "hosts/qt/widget/StepRunner.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QStringList>
#include <QTextDocument>
#include <QToolTip>

namespace zorvane {

namespace {

bool IsArrow(int key) { return key >= Qt::Key_Left && key <= Qt::Key_Down; }

/// A place of the widget in drawing units.
InputRouter::Spot SpotAt(QPointF position) {
    return {ToUnits(position.x()), ToUnits(position.y())};
}

} // namespace

PlateInput::PlateInput(PlateWidget& widget, Plate& plate, WidgetPainter& painter, StepRunner& steps,
                       PlateSignals& observer)
    : widget_(widget), plate_(plate), painter_(painter), steps_(steps), observer_(observer),
      router_(plate, *this), aids_(widget, plate, steps, observer) {}

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
    pressed_ = WellAt(event.position());
    observer_.PointAt(-1);
    router_.Press(ButtonCode(event.button()), ShiftCodes(event.modifiers()), x, y);
}

void PlateInput::DoubleClick(const QMouseEvent& event) {
    const auto [x, y] = SpotAt(event.position());
    pressed_ = WellAt(event.position());
    observer_.PointAt(pressed_);
    router_.DoubleClick(ButtonCode(event.button()), ShiftCodes(event.modifiers()), x, y);
}

void PlateInput::Move(const QMouseEvent& event) {
    const auto [x, y] = SpotAt(event.position());
    const QPointer<PlateWidget> shown(&widget_); // a slot may destroy it
    router_.Move(ButtonCodes(event.buttons()), ShiftCodes(event.modifiers()), x, y);
    if (!shown) return;
    const bool overPlate = IsOverPlate(event.position());
    const bool heldOnPlate = router_.Held() == InputRouter::Part::PlateArea;
    ShowPointer(heldOnPlate || overPlate);
    if (heldOnPlate || !InGesture()) HoverOver(WellAt(event.position()));
}

void PlateInput::Release(const QMouseEvent& event) {
    const auto [x, y] = SpotAt(event.position());
    const Integer well = WellAt(event.position());
    observer_.PointAt(well == pressed_ ? well : Integer{-1});
    router_.Release(ButtonCode(event.button()), ButtonCodes(event.buttons()),
                    ShiftCodes(event.modifiers()), x, y);
}

void PlateInput::Leave() {
    ShowPointer(false);
    HoverOver(-1);
}

void PlateInput::HoverOver(Integer wellNo) {
    if (wellNo == painter_.Hovered()) return;
    painter_.HoverOver(wellNo);
    emit widget_.wellHovered(wellNo);
}

void PlateInput::KeyPress(QKeyEvent& event) {
    painter_.ShowFocusRing(true);
    if (aids_.TakesKey(event)) return;
    const QPointer<PlateWidget> shown(&widget_); // a slot may destroy it
    if (IsArrow(event.key())) ChooseSubWell();
    if (!shown) return;
    const Integer shift = ShiftCodes(event.modifiers());
    const Integer from = plate_.CurrentWell();
    const bool isArrow = router_.KeyDown(KeyCode(event.key()), CharacterCode(event.text()), shift);
    event.setAccepted(isArrow);
    if (shown && isArrow) aids_.Moved(from, shift);
    if (shown) ShowPointer(shown->underMouse());
}

void PlateInput::ChooseSubWell() {
    if (!widget_.aids().testFlag(PlateWidget::Aid::ArrowsChooseSubWell)) return;
    if (plate_.TotalWells() > 0 && plate_.WellIndex() == 0)
        steps_.Run([this] { plate_.WellIndex(1); });
}

void PlateInput::KeyRelease(QKeyEvent& event) {
    const QPointer<PlateWidget> shown(&widget_); // a slot may destroy it
    router_.KeyUp(KeyCode(event.key()), ShiftCodes(event.modifiers()));
    if (shown) ShowPointer(shown->underMouse());
    event.ignore();
}

Boolean PlateInput::Attempt(const std::function<void()>& call) { return steps_.Run(call); }

Boolean PlateInput::AnswerPress(Integer button, Integer shift, InputRouter::Spot at) {
    if (aids_.TakesPress(button, shift, at)) return true;
    painter_.FitOverlay();
    return false;
}

// Whatever went wrong on the way, no outline outlives its gesture.
void PlateInput::GestureEnded() { painter_.WipeOutlines(); }

Boolean PlateInput::PanelIsApart() const { return widget_.detailsDetached(); }

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
    if (!widget_.aids().testFlag(PlateWidget::Aid::RichToolTips))
        return QString::fromStdString(plate_.Elements().plateToolTip);
    const Integer well = painter_.Hovered();
    QStringList lines{widget_.wellCaption(well), widget_.wellAnnotation(well),
                      DataOf(plate_, well)};
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}

} // namespace zorvane
