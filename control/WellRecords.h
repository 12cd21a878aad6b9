#pragma once

#include "model/WellValues.h"
#include "runtime/RuntimeError.h"
#include "runtime/Types.h"

#include <cstddef>
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

    template <class Self>
    static auto& EntryOf(Self& self, Integer wellNo) {
        if (wellNo < 0 || static_cast<std::size_t>(wellNo) >= self.entries_.size())
            Raise(ErrorNumber::SubscriptOutOfRange);
        auto& entry = self.entries_[static_cast<std::size_t>(wellNo)];
        if (!entry.present) Raise(ErrorNumber::ObjectNotSet);
        return entry;
    }

  public:
    /// Discards everything and creates entries 0 to `wells`, of which the last stays empty.
    void Create(Integer wells) {
        entries_.clear();
        entries_.resize(static_cast<std::size_t>(wells) + 1);
        for (std::size_t i = 0; i + 1 < entries_.size(); ++i)
            entries_[i].present = true;
    }

    /// Empties the entries from `first` up.
    void ReleaseFrom(std::size_t first) {
        for (std::size_t i = first; i < entries_.size() && entries_[i].present; ++i)
            entries_[i] = Entry{};
    }

    WellValues& operator[](Integer wellNo) { return EntryOf(*this, wellNo).values; }
    const WellValues& operator[](Integer wellNo) const { return EntryOf(*this, wellNo).values; }

  private:
    std::vector<Entry> entries_;
};

} // namespace zorvane
