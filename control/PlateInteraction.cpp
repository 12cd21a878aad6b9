#include "control/Plate.h"
#include "control/PointerGestures.h"
#include "control/WellElements.h"
#include "control/WellSelection.h"

#include <string>

namespace zorvane {

void Plate::CurrentWell(Integer value) { SetCurrentWell(*this, value); }

void Plate::Row(Integer value) { SetRow(*this, value); }

void Plate::Col(Integer value) { SetCol(*this, value); }

void Plate::WellIndex(Integer value) { SetWellIndex(*this, value); }

String Plate::SubWell() const { return SubWellName(*this); }

void Plate::SubWell(const String& name) { SetSubWell(*this, name); }

String Plate::Location() const {
    return SubWell() + ", " + std::to_string(Row()) + ", " + std::to_string(Col());
}

void Plate::SetWell(Integer R, Integer C, const String& SubWell, WellSelectAction SelectionAction) {
    zorvane::SetWell(Parts(), R, C, SubWell, SelectionAction);
}

void Plate::SelectWell(Integer WellNo, Boolean Value) { SelectOneWell(Parts(), WellNo, Value); }

void Plate::SelectAll(Boolean Value) {
    for (Integer i = 0; i < WellsAllocated; ++i)
        SelectWell(i, Value);
}

Boolean Plate::WellSelected() const { return Wells[CurrentWell()].Selected; }

void Plate::WellSelected(Boolean value) { SelectWell(CurrentWell(), value); }

void Plate::MouseEnabled(Boolean value) {
    surface_.cmdData.enabled = value;
    site_.Repaint(surface_.cmdData.box);
}

void Plate::SelectBoxEnabled(Boolean value) {
    PlateState::SelectBoxEnabled = value;
    if (!value) HideSelectBox(Parts());
}

void Plate::Selected(Boolean value) { MarkControl(Parts(), value); }

Integer Plate::MouseToWell(Single X, Single Y) const { return WellAt(*this, surface_, X, Y); }

void Plate::SetArray(Integer X, Integer Y, Integer Width, Integer Height, const String& SW,
                     Long Direction, Long Color) {
    SelectArray(Parts(), X, Y, Width, Height, SW, Direction, Color);
}

void Plate::FillArray(Long Color, const String& AnnotationText, Integer StartWell,
                      Integer StopWell) {
    FillRecordedArray(Parts(), Color, AnnotationText, StartWell, StopWell);
}

void Plate::ButtonDown(Integer button, Integer shift, Single x, Single y) {
    PressOnPlate(Parts(), button, shift, x, y);
}

void Plate::PointerMove(Integer buttons, Integer /*shift*/, Single x, Single y) {
    MoveOverPlate(Parts(), buttons, x, y);
}

void Plate::ButtonUp(Integer button, Integer shift, Single x, Single y) {
    ReleaseOnPlate(Parts(), button, shift, x, y);
}

void Plate::AreaClicked() {
    site_.TakeFocus();
    PanelClicked();
}

void Plate::AreaDoubleClicked() { PanelDoubleClicked(); }

void Plate::PanelClicked() {
    if (MouseEnabled()) events_.Raise([](PlateObserver& host) { host.Click(); });
}

void Plate::PanelDoubleClicked() {
    if (MouseEnabled()) events_.Raise([](PlateObserver& host) { host.DoubleClick(); });
}

void Plate::BackgroundPressed() {
    if (MouseEnabled()) site_.TakeFocus();
}

void Plate::KeyDown(Integer keyCode, Integer shift) { PressKey(Parts(), keyCode, shift); }

void Plate::KeyUp(Integer /*keyCode*/, Integer shift) { ReleaseKey(Parts(), shift); }

// The characters "&", "(", "%" and "'" share their codes with the arrow keys and move likewise,
// during a drag as well; hosts rely on it.
void Plate::CharacterTyped(Integer code) { MoveByArrow(*this, code); }

} // namespace zorvane
