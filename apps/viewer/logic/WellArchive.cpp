#include "apps/viewer/logic/WellArchive.h"

#include <algorithm>

namespace zorvane::viewer {

namespace {

/// Whether files of well data would hold the same of both.
bool SameData(const WellSnapshot& a, const WellSnapshot& b) {
    return a.defined == b.defined && a.volume == b.volume && a.text == b.text &&
           a.errorCode == b.errorCode && a.annotation == b.annotation;
}

} // namespace

const WellArchive::Wells* WellArchive::Find(const String& plate, std::size_t count) const {
    const auto found = plates_.find(plate);
    const bool fits = found != plates_.end() && found->second.wells.size() == count;
    return fits ? &found->second.wells : nullptr;
}

std::vector<String> WellArchive::NotInFile() const {
    std::vector<String> names;
    for (const auto& [name, plate] : plates_) {
        Wells inFile = plate.inFile;
        inFile.resize(plate.wells.size());
        if (!std::equal(plate.wells.begin(), plate.wells.end(), inFile.begin(), SameData))
            names.push_back(name);
    }
    return names;
}

} // namespace zorvane::viewer
