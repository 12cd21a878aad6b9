#pragma once

#include "control/PlateFields.h"
#include "control/Surface.h"
#include "model/cmPlate.h"
#include "runtime/Types.h"

#include <vector>

namespace zorvane {

/// Places the row and column legends of a layout: Anchor, then Create, then rows and columns in the
/// order in which they are painted.
class LegendLayout {
  public:
    LegendLayout(const PlateFields& fields, Surface& surface)
        : fields_(fields), surface_(surface) {}

    /// The number of labels in use, with the measuring stick; never falls.
    Integer Count() const { return count_; }

    /// Finds out where the legends stand at a scale; error 9 for a plate without sub-wells.
    void Anchor(const cmPlate& plate, Single scale);
    void Create();
    /// Places the legends of all columns, under the last row.
    void PlaceColumns(const cmPlate& plate, Integer columnPitch);
    /// Places the legend of a row whose wells' centres are at `y`.
    void PlaceRow(const cmPlate& plate, Integer row, Single y);

  private:
    Integer Step() const;
    Label& Legend(Integer number);
    void Paint(std::vector<PaintRun>::iterator before, Integer first, Integer count);

    const PlateFields& fields_;
    Surface& surface_;
    Integer count_ = 0;
    Single rowLeft_ = 0;
    Single columnTop_ = 0;
    Single columnLeft_ = 0; ///< of column 0
};

} // namespace zorvane
