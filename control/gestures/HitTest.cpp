#include "control/gestures/HitTest.h"

#include "control/WellGrid.h"
#include "runtime/Rounding.h"

namespace zorvane {

namespace {

Boolean Holds(const Rect& box, Single x, Single y) {
    const Integer left = ToInteger(box.left);
    const Integer top = ToInteger(box.top);
    const Integer right = ToInteger(left + Double{box.width});
    const Integer bottom = ToInteger(top + Double{box.height});
    return left <= x && x < right && top <= y && y < bottom;
}

} // namespace

Integer HitTest::WellAt(Single x, Single y) const {
    if (grid_.rowPitch < 1 || grid_.columnPitch < 1 || definition_.SubWellsEdited()) return -1;
    const cmPlate& plate = *definition_;
    if (plate.Rows() < 1 || plate.Cols() < 1) return -1;

    const Integer row = ToInteger((Double{y} - grid_.top) / grid_.rowPitch);
    const Integer col = ToInteger((Double{x} - grid_.left) / grid_.columnPitch);
    if (row < 0 || col < 0 || row >= fields_.Rows || col >= fields_.Cols) return -1;

    const Long subWells = plate.CompoundWell()->Count();
    if (subWells < 2) return plate.RowColToIndex(row, col);
    const WellGrid wells{fields_.Rows, fields_.Cols};
    for (Integer position = 1; position <= subWells; ++position) {
        const Integer wellNo = wells.NumberOf({position, row, col});
        if (Holds(elements_.Rim(wellNo).box, x, y)) return wellNo;
    }
    return -1;
}

} // namespace zorvane
