#include "control/Plate.h"
#include "control/PointerGestures.h"
#include "control/WellElements.h"
#include "control/WellSelection.h"

#include <string>

namespace zorvane {

void Plate::CurrentWell(Integer value) {
    site_.Operate([&] { SetCurrentWell(*this, value); });
}

void Plate::Row(Integer value) {
    site_.Operate([&] { SetRow(*this, value); });
}

void Plate::Col(Integer value) {
    site_.Operate([&] { SetCol(*this, value); });
}

void Plate::WellIndex(Integer value) {
    site_.Operate([&] { SetWellIndex(*this, value); });
}

String Plate::SubWell() const { return SubWellName(*this); }

void Plate::SubWell(const String& name) {
    site_.Operate([&] { SetSubWell(*this, name); });
}

String Plate::Location() const {
    return SubWell() + ", " + std::to_string(Row()) + ", " + std::to_string(Col());
}

void Plate::SetWell(Integer R, Integer C, const String& SubWell, WellSelectAction SelectionAction) {
    site_.Operate([&] { zorvane::SetWell(Parts(), R, C, SubWell, SelectionAction); });
}

void Plate::SelectWell(Integer WellNo, Boolean Value) {
    site_.Operate([&] { SelectOneWell(Parts(), WellNo, Value); });
}

void Plate::SelectAll(Boolean Value) {
    site_.Operate([&] {
        for (Integer i = 0; i < WellsAllocated; ++i)
            SelectWell(i, Value);
    });
}

void Plate::ClearSelection() {
    site_.Operate([&] { zorvane::ClearSelection(Parts()); });
}

Boolean Plate::WellSelected() const { return Wells[CurrentWell()].Selected; }

void Plate::WellSelected(Boolean value) {
    site_.Operate([&] { SelectWell(CurrentWell(), value); });
}

void Plate::MouseEnabled(Boolean value) {
    site_.Operate([&] {
        surface_.cmdData.enabled = value;
        site_.Repaint(surface_.cmdData.box);
        site_.DataButtonChanged();
    });
}

void Plate::SelectBoxEnabled(Boolean value) {
    site_.Operate([&] {
        PlateState::SelectBoxEnabled = value;
        if (!value) HideSelectBox(Parts());
    });
}

void Plate::Selected(Boolean value) {
    site_.Operate([&] { MarkControl(Parts(), value); });
}

Integer Plate::MouseToWell(Single X, Single Y) const { return WellAt(*this, surface_, X, Y); }

void Plate::SetArray(Integer X, Integer Y, Integer Width, Integer Height, const String& SW,
                     Long Direction, Long Color) {
    site_.Operate([&] { SelectArray(Parts(), X, Y, Width, Height, SW, Direction, Color); });
}

void Plate::FillArray(Long Color, const String& AnnotationText, Integer StartWell,
                      Integer StopWell) {
    site_.Operate([&] { FillRecordedArray(Parts(), Color, AnnotationText, StartWell, StopWell); });
}

void Plate::ButtonDown(Integer button, Integer shift, Single x, Single y) {
    site_.Operate([&] { PressOnPlate(Parts(), button, shift, x, y); });
}

void Plate::PointerMove(Integer buttons, Integer /*shift*/, Single x, Single y) {
    site_.Operate([&] { MoveOverPlate(Parts(), buttons, x, y); });
}

void Plate::ButtonUp(Integer button, Integer shift, Single x, Single y) {
    site_.Operate([&] { ReleaseOnPlate(Parts(), button, shift, x, y); });
}

void Plate::AreaClicked() {
    site_.Operate([&] {
        site_.TakeFocus();
        PanelClicked();
    });
}

void Plate::AreaDoubleClicked() { PanelDoubleClicked(); }

void Plate::PanelClicked() {
    site_.Operate([&] {
        if (MouseEnabled()) site_.Raise([](PlateObserver& host) { host.Click(); });
    });
}

void Plate::PanelDoubleClicked() {
    site_.Operate([&] {
        if (MouseEnabled()) site_.Raise([](PlateObserver& host) { host.DoubleClick(); });
    });
}

void Plate::BackgroundPressed() {
    site_.Operate([&] {
        if (MouseEnabled()) site_.TakeFocus();
    });
}

void Plate::KeyDown(Integer keyCode, Integer shift) {
    site_.Operate([&] { PressKey(Parts(), keyCode, shift); });
}

void Plate::KeyUp(Integer /*keyCode*/, Integer shift) {
    site_.Operate([&] { ReleaseKey(Parts(), shift); });
}

// The characters "&", "(", "%" and "'" share their codes with the arrow keys and move likewise,
// during a drag as well; hosts rely on it.
void Plate::CharacterTyped(Integer code) {
    site_.Operate([&] { MoveByArrow(*this, code); });
}

} // namespace zorvane
