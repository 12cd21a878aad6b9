#pragma once

#include "model/WellValues.h"
#include "runtime/RuntimeError.h"
#include "runtime/Types.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace zorvane {

/// The run-time records of all wells, by well number. The array has one entry more than there are
/// wells; that one and the entries released by a smaller plate are empty: using them fails with
/// error 91, going beyond the array with 9.
class WellRecords {
    struct Entry {
        WellValues values;
        Boolean present = false;
    };

    static Boolean IsSelected(const Entry& entry) { return entry.values.Selected; }

    template <class Self>
    static auto& EntryOf(Self& self, Integer wellNo) {
        if (wellNo < 0 || static_cast<std::size_t>(wellNo) >= self.entries_.size())
            Raise(ErrorNumber::SubscriptOutOfRange);
        auto& entry = self.entries_[static_cast<std::size_t>(wellNo)];
        if (!entry.present) Raise(ErrorNumber::ObjectNotSet);
        return entry;
    }

  public:
    /// The number of wells of the plate.
    Integer Total() const { return total_; }
    /// The number of records; follows Total at the end of SetTotal and Release.
    Integer Allocated() const { return allocated_; }
    /// Wells at or beyond Total are not shown. Negative numbers pass here and fail where they are
    /// used.
    Boolean IsShown(Integer wellNo) const { return wellNo < total_; }

    /// Takes the number of wells of another plate. When there were fewer records all are created
    /// again, empty. Returns whether a selected well went.
    [[nodiscard]] Boolean SetTotal(Integer wells) {
        total_ = wells;
        if (allocated_ >= wells) return false;
        const Boolean selected = std::any_of(entries_.begin(), entries_.end(), IsSelected);
        entries_.clear();
        entries_.resize(static_cast<std::size_t>(wells) + 1);
        for (std::size_t i = 0; i + 1 < entries_.size(); ++i)
            entries_[i].present = true;
        allocated_ = wells;
        return selected;
    }

    /// Empties the entries that have no well; entry 0 stays. A later, larger plate creates all of
    /// them again. Returns whether a selected well went.
    [[nodiscard]] Boolean Release() {
        Boolean selected = false;
        const auto first = static_cast<std::size_t>(std::max<Integer>(total_, 1));
        for (std::size_t i = first; i < entries_.size() && entries_[i].present; ++i)
            selected |= std::exchange(entries_[i], {}).values.Selected;
        allocated_ = total_;
        return selected;
    }

    WellValues& operator[](Integer wellNo) { return EntryOf(*this, wellNo).values; }
    const WellValues& operator[](Integer wellNo) const { return EntryOf(*this, wellNo).values; }

  private:
    std::vector<Entry> entries_;
    Integer total_ = 0;
    Integer allocated_ = 0;
};

} // namespace zorvane
