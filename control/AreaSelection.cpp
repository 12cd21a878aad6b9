#include "control/AreaSelection.h"

#include "control/WellElements.h"
#include "control/WellSelection.h"
#include "runtime/Checked.h"

#include <algorithm>

namespace zorvane {

namespace {

/// A block of the grid, both ends included.
struct Block {
    Integer left;
    Integer top;
    Integer right;
    Integer bottom;
};

/// The block between the pressed well and the one so many rows and columns away, cut to the grid.
Block BlockOf(const PlateState& state, Integer columns, Integer rows) {
    const Integer col = Checked(state.Col) + columns;
    const Integer row = Checked(state.Row) + rows;
    return {std::max<Integer>(0, std::min(state.Col, col)),
            std::max<Integer>(0, std::min(state.Row, row)),
            std::min<Integer>(Checked(state.Cols) - 1, std::max(state.Col, col)),
            std::min<Integer>(Checked(state.Rows) - 1, std::max(state.Row, row))};
}

void SelectBlock(ControlParts parts, const Block& block) {
    for (Integer row = block.top; row <= block.bottom; ++row) {
        for (Integer col = block.left; col <= block.right; ++col) {
            MakeCurrent(parts.state, row, col);
            AddCurrentWellToSelection(parts);
        }
    }
}

/// Puts the selection box around the block; leaves its last well current.
void FrameBlock(ControlParts parts, const Block& block) {
    PlateState& state = parts.state;
    Outline& select = parts.surface.SelectBox;
    HideSelectBox(parts);

    MakeCurrent(state, block.top, block.left);
    const Rect first = RimOf(parts.surface, state.CurrentWell).box;
    state.DragAnchorX = first.left;
    state.DragAnchorY = first.top;

    MakeCurrent(state, block.bottom, block.right);
    const Rect last = RimOf(parts.surface, state.CurrentWell).box;
    select.box = {first.left, first.top, last.left - first.left + last.width,
                  last.top - first.top + last.height};
    select.visible = true;
    RepaintInPlate(parts, select.box);
}

} // namespace

void SelectArea(ControlParts parts, Integer columns, Integer rows) {
    PlateState& state = parts.state;
    parts.site.HandOut();
    parts.focus.RectangleVisible(false);
    const Block block = BlockOf(state, columns, rows);
    state.ArrayX = block.left;
    state.ArrayY = block.top;
    state.ArrayWidth = Checked(block.right) - block.left + 1;
    state.ArrayHeight = Checked(block.bottom) - block.top + 1;

    if (state.ArrayWidth == 1 && state.ArrayHeight == 1) {
        parts.site.Raise([&](PlateObserver& host) { host.SelectWell(state.CurrentWell); });
        return;
    }
    SelectBlock(parts, block);
    if (state.SelectBoxEnabled) FrameBlock(parts, block);
    parts.site.Raise([](PlateObserver& host) { host.SelectMultipleWells(); });
}

} // namespace zorvane
