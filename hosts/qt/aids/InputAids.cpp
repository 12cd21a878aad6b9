#include "hosts/qt/aids/InputAids.h"

#include "hosts/qt/PlateWidget.h"
#include "hosts/qt/aids/PlateLegends.h"
#include "hosts/qt/widget/PlateSignals.h"
#include "hosts/qt/widget/StepRunner.h"

#include <QKeyEvent>

namespace zorvane {

using Aid = PlateWidget::Aid;

template <class Selection>
void InputAids::Select(Selection selection) {
    steps_.Run([&] {
        observer_.Gather(selection);
        emit widget_.selectionAided();
    });
}

bool InputAids::TakesPress(Integer button, Integer shift, InputRouter::Spot at) {
    if (button == kLeftButton && plate_.MouseEnabled() && plate_.MultipleSelect &&
        (SelectsLegend(shift, at) || ExtendsSelection(shift, at)))
        return true;
    selection_.ForgetAnchor();
    return false;
}

bool InputAids::SelectsLegend(Integer shift, InputRouter::Spot at) {
    if (!widget_.aids().testFlag(Aid::LegendClickSelects)) return false;
    const auto line = LegendAt(plate_, at.x, at.y);
    if (!line) return false;
    widget_.setFocus(Qt::MouseFocusReason);
    Select([&] { selection_.SelectLine(*line, (shift & kCtrlKey) != 0); });
    return true;
}

bool InputAids::ExtendsSelection(Integer shift, InputRouter::Spot at) {
    if (!widget_.aids().testFlag(Aid::ShiftExtendsSelection) || (shift & kShiftKey) == 0)
        return false;
    const Integer well = plate_.MouseToWell(at.x, at.y);
    if (!IsWell(well) || !IsWell(plate_.CurrentWell())) return false;
    widget_.setFocus(Qt::MouseFocusReason);
    Select([&] { selection_.ExtendTo(well, (shift & kCtrlKey) != 0); });
    return true;
}

bool InputAids::TakesKey(const QKeyEvent& event) {
    if (plate_.TotalWells() < 1) return false;
    const PlateWidget::Aids aids = widget_.aids();
    if (aids.testFlag(Aid::EscapeClearsSelection) && event.key() == Qt::Key_Escape &&
        selection_.Any()) {
        Select([this] { plate_.ClearSelection(); });
        return true;
    }
    if (aids.testFlag(Aid::CtrlASelectsAll) && event.matches(QKeySequence::SelectAll) &&
        plate_.MultipleSelect) {
        Select([this] { selection_.SelectAll(); });
        return true;
    }
    return false;
}

void InputAids::Moved(Integer from, Integer shift) {
    const Integer to = plate_.CurrentWell();
    const bool extends = (shift & kShiftKey) != 0 && plate_.MultipleSelect &&
                         widget_.aids().testFlag(Aid::ShiftExtendsSelection);
    if (!extends || !IsWell(from) || !IsWell(to)) {
        selection_.ForgetAnchor();
        return;
    }
    Select([&] {
        plate_.CurrentWell(from);
        selection_.ExtendTo(to, (shift & kCtrlKey) != 0);
    });
}

} // namespace zorvane
