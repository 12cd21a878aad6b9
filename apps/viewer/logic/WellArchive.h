#pragma once

#include "apps/viewer/logic/WellSnapshot.h"

#include <cstddef>
#include <map>
#include <vector>

namespace zorvane::viewer {

/// The wells of the plates of one library that have been looked at, by the plate's name.
class WellArchive {
  public:
    using Wells = std::vector<WellSnapshot>;

    void Clear() { plates_.clear(); }
    void Keep(const String& plate, Wells wells) { plates_[plate].wells = std::move(wells); }
    /// The wells of a plate that has this many; null when none are kept.
    const Wells* Find(const String& plate, std::size_t count) const;

    /// A file holds the data that is kept of a plate.
    void SetInFile(const String& plate) { plates_[plate].inFile = plates_[plate].wells; }
    /// The plates with data that no file holds.
    std::vector<String> NotInFile() const;

  private:
    struct Entry {
        Wells wells;
        Wells inFile; ///< empty before there is a file
    };

    std::map<String, Entry> plates_;
};

} // namespace zorvane::viewer
