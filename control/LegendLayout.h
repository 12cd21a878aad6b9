#pragma once

#include "control/PlateState.h"
#include "control/Surface.h"
#include "runtime/Types.h"

#include <vector>

namespace zorvane {

/// Places the row and column legends of one layout: Anchor, Begin, then rows and columns in the
/// order in which they are numbered.
class LegendLayout {
  public:
    LegendLayout(PlateState& state, Surface& surface) : state_(state), surface_(surface) {}

    /// Finds out where the legends stand; error 9 for a plate without sub-wells.
    void Anchor();
    /// Creates the labels and numbers them from 1.
    void Begin();
    /// Places the legends of all columns, under the last row.
    void PlaceColumns();
    /// Places the legend of a row whose wells' centres are at `y`.
    void PlaceRow(Integer row, Single y);

  private:
    Integer Step() const;
    Label& Next();
    void Paint(std::vector<PaintRun>::iterator before, Integer first, Integer count);

    PlateState& state_;
    Surface& surface_;
    Single rowLeft_ = 0;
    Single columnTop_ = 0;
    Single columnLeft_ = 0; ///< of column 0
    Integer next_ = 1;
};

} // namespace zorvane
