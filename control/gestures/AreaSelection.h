#pragma once

#include "control/PlateFields.h"
#include "control/gestures/SelectionBox.h"
#include "control/wells/Selection.h"
#include "control/wells/WellBlock.h"
#include "control/wells/WellCursor.h"
#include "control/wells/WellElements.h"
#include "runtime/Types.h"

namespace zorvane {

/// Selects an area of the grid, as the operator does with the pointer.
class AreaSelection {
  public:
    AreaSelection(const PlateFields& fields, const WellElements& elements, WellCursor& cursor,
                  WellBlock& block, Selection& selection, SelectionBox& box)
        : fields_(fields), elements_(elements), cursor_(cursor), block_(block),
          selection_(selection), box_(box) {}

    /// The area reaches from the current well, the pressed one, this many columns and rows away and
    /// is cut to the grid. Records the block and, unless it is a single well, adds its wells to the
    /// selection and frames them where that is enabled.
    void Select(Integer columns, Integer rows);

  private:
    void Record(Integer columns, Integer rows);
    void AddBlock();
    void FrameBlock();

    const PlateFields& fields_;
    const WellElements& elements_;
    WellCursor& cursor_;
    WellBlock& block_;
    Selection& selection_;
    SelectionBox& box_;
};

} // namespace zorvane
