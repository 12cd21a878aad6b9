#include "control/ArrayFill.h"

#include "control/WellElements.h"
#include "control/WellSelection.h"
#include "model/cmPlate.h"
#include "runtime/Checked.h"

#include <string>

namespace zorvane {

namespace {

constexpr Long kOutsidePlate = 2999;

/// One direction of a walk: `count` positions from `first` in steps of +1 or -1.
struct Run {
    Integer first;
    Integer step;
    Integer count;

    Integer At(Integer index) const { return Checked(first) + Checked(step) * index; }
};

Run RunOver(Integer first, Integer count, Boolean backwards) {
    const Integer last = Checked(first) + count - 1;
    return backwards ? Run{last, -1, count} : Run{first, 1, count};
}

Boolean IsVertical(Long order) { return order % 2 != 0; }
Boolean FromRight(Long order) { return (order & 2) != 0; }
Boolean FromBottom(Long order) { return (order & 4) != 0; }

String NumberedCaption(const String& annotation, Integer number) {
    const std::size_t mark = annotation.find('#');
    if (mark == String::npos) return annotation;
    return annotation.substr(0, mark) + std::to_string(number) + annotation.substr(mark + 1);
}

void CheckBlock(const PlateState& state) {
    const Integer right = Checked(state.ArrayX) + state.ArrayWidth;
    const Integer bottom = Checked(state.ArrayY) + state.ArrayHeight;
    if (bottom > state.Rows || right > state.Cols || state.ArrayX < 0 || state.ArrayY < 0) {
        throw RuntimeError(kOutsidePlate, "Zorvane::SelectBlock",
                           "Attempt to select wells outside <" + state.PlateName + "> plate");
    }
}

void SelectRecordedBlock(ControlParts parts, Long color) {
    PlateState& state = parts.state;
    CheckBlock(state);
    for (Integer column = 0; column < state.ArrayWidth; ++column) {
        for (Integer row = 0; row < state.ArrayHeight; ++row) {
            MakeCurrent(state, Checked(state.ArrayY) + row, Checked(state.ArrayX) + column);
            if (AddCurrentWellToSelection(parts) && color != kNoColor)
                SetBottomFill(parts, state.CurrentWell, color);
        }
    }
}

} // namespace

void SelectArray(ControlParts parts, Integer x, Integer y, Integer width, Integer height,
                 const String& subWell, Long direction, Long color) {
    PlateState& state = parts.state;
    state.ArrayX = x;
    state.ArrayY = y;
    state.ArrayWidth = width;
    state.ArrayHeight = height;
    // The block's own sub-well name stays empty: hosts read the sub-well from the current well.
    SetSubWell(state, subWell);
    state.ArrayDirection = direction;
    SelectRecordedBlock(parts, color);
}

void FillRecordedArray(ControlParts parts, Long color, const String& annotation, Integer startWell,
                       Integer stopWell) {
    PlateState& state = parts.state;
    const Long order = state.ArrayDirection;
    const Integer stop =
        stopWell == -1 ? Checked(state.ArrayWidth) * state.ArrayHeight : Checked(stopWell);
    if (stop < startWell || order < foTopLeftHorizontal || order > foBottomRightVertical) return;

    const Run columns = RunOver(state.ArrayX, state.ArrayWidth, FromRight(order));
    const Run rows = RunOver(state.ArrayY, state.ArrayHeight, FromBottom(order));
    const Run& outer = IsVertical(order) ? columns : rows;
    const Run& inner = IsVertical(order) ? rows : columns;
    Integer number = 0;
    for (Integer i = 0; i < outer.count; ++i) {
        for (Integer j = 0; j < inner.count; ++j) {
            if (number >= stop) return;
            number = Checked(number) + 1;
            if (number < startWell) continue;
            const Integer row = IsVertical(order) ? inner.At(j) : outer.At(i);
            const Integer column = IsVertical(order) ? outer.At(i) : inner.At(j);
            MakeCurrent(state, row, column);
            if (color != kNoColor) SetBottomFill(parts, state.CurrentWell, color);
            if (annotation != kNoValue)
                SetAnnotation(parts, state.CurrentWell, NumberedCaption(annotation, number));
        }
    }
}

} // namespace zorvane
