#pragma once

#include "control/Notifier.h"
#include "control/cmFocus.h"
#include "control/wells/WellElements.h"
#include "control/wells/WellRecords.h"
#include "runtime/Types.h"

namespace zorvane {

/// The outlines of all selected wells while they are dragged.
class DragOutline {
  public:
    DragOutline(const WellRecords& wells, const WellElements& elements, cmFocus& focus,
                Notifier& notifier)
        : wells_(wells), elements_(elements), focus_(focus), notifier_(notifier) {}

    /// Draws them this far from their wells; a second time erases them.
    void Draw(Single dx, Single dy) const;

  private:
    const WellRecords& wells_;
    const WellElements& elements_;
    cmFocus& focus_;
    Notifier& notifier_;
};

} // namespace zorvane
