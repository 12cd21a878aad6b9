#pragma once

#include "control/Notifier.h"
#include "control/PlateFields.h"
#include "control/wells/WellCursor.h"
#include "control/wells/WellElements.h"
#include "control/wells/WellRecords.h"
#include "runtime/Types.h"

namespace zorvane {

/// Which wells are selected, and how many as counted by some of the ways to select them. Error 9 or
/// 91 for a well that does not exist.
class Selection {
  public:
    Selection(const PlateFields& fields, WellCursor& cursor, WellRecords& wells,
              WellElements& elements, Notifier& notifier)
        : fields_(fields), cursor_(cursor), wells_(wells), elements_(elements),
          notifier_(notifier) {}

    Integer Count() const { return count_; }
    Boolean Has(Integer wellNo) const { return wells_[wellNo].Selected; }

    /// Marks a well, or all of them, without counting.
    void Mark(Integer wellNo, Boolean selected);
    void MarkAll(Boolean selected);
    void Clear();
    /// Makes a well current and does with the selection what the action says.
    void SetWell(Integer row, Integer col, const String& subWell, WellSelectAction action);
    /// Marks and counts the current well unless it is selected; returns whether it was not.
    Boolean AddCurrent();

  private:
    void SetMark(Integer wellNo, Boolean selected);

    const PlateFields& fields_;
    WellCursor& cursor_;
    WellRecords& wells_;
    WellElements& elements_;
    Notifier& notifier_;
    Integer count_ = 0;
};

} // namespace zorvane
