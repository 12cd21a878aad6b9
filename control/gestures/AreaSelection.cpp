#include "control/gestures/AreaSelection.h"

#include "runtime/Checked.h"

#include <algorithm>

namespace zorvane {

void AreaSelection::Select(Integer columns, Integer rows) {
    Record(columns, rows);
    if (block_.IsSingleWell()) return;
    AddBlock();
    if (box_.Enabled()) FrameBlock();
}

void AreaSelection::Record(Integer columns, Integer rows) {
    const Integer col = Checked(cursor_.Col()) + columns;
    const Integer row = Checked(cursor_.Row()) + rows;
    const auto left = std::max<Integer>(0, std::min(cursor_.Col(), col));
    const auto top = std::max<Integer>(0, std::min(cursor_.Row(), row));
    const auto right = std::min<Integer>(Checked(fields_.Cols) - 1, std::max(cursor_.Col(), col));
    const auto bottom = std::min<Integer>(Checked(fields_.Rows) - 1, std::max(cursor_.Row(), row));
    block_.Record(left, top, Checked(right) - left + 1, Checked(bottom) - top + 1);
}

void AreaSelection::AddBlock() {
    for (Integer row = 0; row < block_.Height(); ++row) {
        for (Integer col = 0; col < block_.Width(); ++col) {
            cursor_.MoveTo(Checked(block_.Y()) + row, Checked(block_.X()) + col);
            selection_.AddCurrent();
        }
    }
}

/// Puts the selection box around the block; leaves its last well current.
void AreaSelection::FrameBlock() {
    box_.Hide();
    cursor_.MoveTo(block_.Y(), block_.X());
    const Rect first = elements_.Rim(cursor_.Number()).box;
    cursor_.MoveTo(Checked(block_.Y()) + block_.Height() - 1,
                   Checked(block_.X()) + block_.Width() - 1);
    const Rect last = elements_.Rim(cursor_.Number()).box;
    box_.Show({first.left, first.top, last.left - first.left + last.width,
               last.top - first.top + last.height});
}

} // namespace zorvane
