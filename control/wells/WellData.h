#pragma once

#include "control/Notifier.h"
#include "control/PlateFields.h"
#include "control/wells/WellElements.h"
#include "control/wells/WellRecords.h"
#include "runtime/Types.h"

namespace zorvane {

/// What the host keeps for each well, and the colours and captions that show it. Unless said
/// otherwise, well numbers at or beyond the last well read as empty and ignore writes; negative
/// ones fail with error 9.
class WellData {
  public:
    WellData(const PlateFields& fields, WellRecords& wells, WellElements& elements,
             Notifier& notifier)
        : fields_(fields), wells_(wells), elements_(elements), notifier_(notifier) {}

    /// One of the plain values of a well.
    template <class Value>
    Value Read(Integer wellNo, Value WellValues::*field) const {
        return wells_.IsShown(wellNo) ? wells_[wellNo].*field : Value();
    }
    template <class Value>
    void Write(Integer wellNo, Value WellValues::*field, const Value& value) {
        if (wells_.IsShown(wellNo)) WriteAny(wellNo, field, value);
    }
    /// Fails with error 9 or 91 for a well that does not exist.
    template <class Value>
    void WriteAny(Integer wellNo, Value WellValues::*field, const Value& value) {
        wells_[wellNo].*field = value;
        notifier_.WellDataChanged(wellNo, wellNo);
    }

    String Annotation(Integer wellNo) const;
    void Annotation(Integer wellNo, const String& value);
    Long Fill(Integer wellNo) const;
    void Fill(Integer wellNo, Long color);
    Long RimFill(Integer wellNo) const;
    void RimFill(Integer wellNo, Long color);

    /// Marks and colours a well; False also clears its error code.
    void Define(Integer wellNo, Boolean value);
    /// Clears mark, volume, annotation and colour; error 9 or 91 for a well that does not exist.
    void Clear(Integer wellNo);

  private:
    const PlateFields& fields_;
    WellRecords& wells_;
    WellElements& elements_;
    Notifier& notifier_;
};

} // namespace zorvane
