#pragma once

#include "control/Definition.h"
#include "control/PlateFields.h"
#include "control/layout/DrawnGrid.h"
#include "control/wells/WellElements.h"
#include "runtime/Types.h"

namespace zorvane {

/// Finds the well under a point of the plate area.
class HitTest {
  public:
    HitTest(const PlateFields& fields, const Definition& definition, const DrawnGrid& grid,
            const WellElements& elements)
        : fields_(fields), definition_(definition), grid_(grid), elements_(elements) {}

    /// -1 when there is none, and while edited sub-wells are not laid out.
    Integer WellAt(Single x, Single y) const;

  private:
    const PlateFields& fields_;
    const Definition& definition_;
    const DrawnGrid& grid_;
    const WellElements& elements_;
};

} // namespace zorvane
