#include "control/WellSelection.h"

#include "control/WellElements.h"
#include "runtime/Checked.h"
#include "runtime/Rounding.h"
#include "runtime/Text.h"

namespace zorvane {

namespace {

constexpr const char* kDefaultSubWell = "DEFAULT";

Checked WellNumber(const PlateState& state, Integer wellIndex, Integer row, Integer col) {
    return (Checked(wellIndex) - 1) * state.Rows * state.Cols + Checked(row) * state.Cols + col;
}

void Readdress(PlateState& state) {
    state.CurrentWell = WellNumber(state, state.WellIndex, state.Row, state.Col);
}

/// The position of a sub-well by name, or 0.
Integer PositionOfSubWell(const PlateState& state, const String& name) {
    Integer position = 1;
    for (const auto& subWell : *state.Definition().CompoundWell()) {
        if (EqualNoCase(subWell->WellName(), name)) return position;
        position = Checked(position) + 1;
    }
    return 0;
}

Integer OnePastLastSubWell(const PlateState& state) {
    return Checked(state.Definition().CompoundWell()->Count()) + 1;
}

Boolean Holds(const Shape& rim, Single x, Single y) {
    const Integer left = ToInteger(rim.box.left);
    const Integer top = ToInteger(rim.box.top);
    const Integer right = ToInteger(left + Double{rim.box.width});
    const Integer bottom = ToInteger(top + Double{rim.box.height});
    return left <= x && x < right && top <= y && y < bottom;
}

} // namespace

void ClearSelection(ControlParts parts) {
    for (Integer i = 0; i < parts.state.TotalWells; ++i) {
        if (!parts.state.Wells[i].Selected) continue;
        SetRimFill(parts, i, parts.state.DefaultRimColor);
        parts.state.Wells[i].Selected = false;
        parts.site.SelectionChanged();
    }
    parts.state.NSelected = 0;
}

void SetCurrentWell(PlateState& state, Integer wellNo) {
    state.CurrentWell = wellNo;
    const Boolean hasGrid = state.Cols > 0 && state.Rows > 0;
    const Checked position = Checked(wellNo) / (hasGrid ? state.Cols : Integer{1});
    state.Col = hasGrid ? Checked(wellNo) % state.Cols : Checked(0);
    state.Row = hasGrid ? position % state.Rows : Checked(0);
    state.WellIndex = hasGrid ? position / state.Rows + 1 : Checked(0);
}

void SetRow(PlateState& state, Integer row) {
    state.Row = row;
    Readdress(state);
}

void SetCol(PlateState& state, Integer col) {
    state.Col = col;
    Readdress(state);
}

void MakeCurrent(PlateState& state, Integer row, Integer col) {
    state.Row = row;
    SetCol(state, col);
}

void SetWellIndex(PlateState& state, Integer wellIndex) {
    state.WellIndex =
        wellIndex == 0 ? Checked(state.Definition().CompoundWell()->Count()) : Checked(wellIndex);
    Readdress(state);
}

void SetSubWell(PlateState& state, const String& name) {
    Integer position = name.empty() ? Integer{1} : PositionOfSubWell(state, name);
    if (position == 0) {
        position = EqualNoCase(SubWellName(state), kDefaultSubWell) ? Integer{1}
                                                                    : OnePastLastSubWell(state);
    }
    state.WellIndex = position;
    Readdress(state);
}

String SubWellName(const PlateState& state) {
    if (state.WellIndex == 0) return "Default";
    return state.Definition().CompoundWell()->Item(state.WellIndex)->WellName();
}

void SelectOneWell(ControlParts parts, Integer wellNo, Boolean selected) {
    parts.state.Wells[wellNo].Selected = selected;
    parts.site.SelectionChanged();
    SetRimFill(parts, wellNo,
               selected ? parts.state.DefaultSelectColor : parts.state.DefaultRimColor);
}

void SetWell(ControlParts parts, Integer row, Integer col, const String& subWell,
             WellSelectAction action) {
    PlateState& state = parts.state;
    Integer position = subWell.empty() ? Integer{1} : PositionOfSubWell(state, subWell);
    // Unlike the SubWell property, what counts is the name asked for, not the present sub-well.
    if (position == 0)
        position = EqualNoCase(subWell, kDefaultSubWell) ? Integer{1} : OnePastLastSubWell(state);

    if (action == wsSingle || !state.MultipleSelect) ClearSelection(parts);
    state.Col = col;
    state.Row = row;
    SetWellIndex(state, position);
    if (action == wsSilent) return;

    const Boolean select = !state.Wells[state.CurrentWell].Selected;
    SelectOneWell(parts, state.CurrentWell, select);
    state.NSelected = Checked(state.NSelected) + (select ? 1 : -1);
}

Boolean AddCurrentWellToSelection(ControlParts parts) {
    WellValues& well = parts.state.Wells[parts.state.CurrentWell];
    if (well.Selected) return false;
    well.Selected = true;
    parts.site.SelectionChanged();
    parts.state.NSelected = Checked(parts.state.NSelected) + 1;
    SetRimFill(parts, parts.state.CurrentWell, parts.state.DefaultSelectColor);
    return true;
}

Integer WellAt(const PlateState& state, const Surface& surface, Single x, Single y) {
    if (state.RowPitch < 1 || state.ColumnPitch < 1 || state.LayoutBusy) return -1;
    const cmPlate& plate = state.Definition();
    if (plate.Rows() < 1 || plate.Cols() < 1) return -1;

    const Integer row = ToInteger((Double{y} - state.GridTop) / state.RowPitch);
    const Integer col = ToInteger((Double{x} - state.GridLeft) / state.ColumnPitch);
    if (row < 0 || col < 0 || row >= state.Rows || col >= state.Cols) return -1;

    const Long subWells = plate.CompoundWell()->Count();
    if (subWells < 2) return plate.RowColToIndex(row, col);
    for (Integer position = 1; position <= subWells; ++position) {
        const Integer wellNo = WellNumber(state, position, row, col);
        if (Holds(RimOf(surface, wellNo), x, y)) return wellNo;
    }
    return -1;
}

void MarkControl(ControlParts parts, Boolean selected) {
    PlateState& state = parts.state;
    Surface& surface = parts.surface;
    state.Selected = selected;
    surface.cmdData.bold = selected;
    surface.fraPlate.text = selected ? kButtonText : kGrayText;
    surface.fraPlate.back = selected ? state.SelectedColor : state.DeselectedColor;
    if (selected && surface.cmdData.visible && surface.cmdData.enabled)
        parts.site.FocusDataButton();
    for (std::size_t i = 0; i < static_cast<std::size_t>(state.LabelCount); ++i)
        surface.lblWell[i].color = surface.fraPlate.text;
    parts.site.RepaintAll();
    parts.site.DataButtonChanged();
}

} // namespace zorvane
