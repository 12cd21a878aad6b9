#include "apps/viewer/logic/PlateChoice.h"

#include "runtime/Text.h"

#include <algorithm>

namespace zorvane::viewer {

namespace {

constexpr const char* kPlaceholder = "No_Plate";

int Suitability(const LibraryEntry& plate) {
    if (!plate.found) return 0;
    if (EqualNoCase(plate.name, kPlaceholder)) return 1;
    return plate.subWells < 2 ? 2 : 3;
}

} // namespace

bool MatchesFilter(const LibraryEntry& plate, std::string_view typed) {
    const String searched = LowerText(plate.name + " " + plate.tags);
    std::string_view rest = TrimStart(typed);
    while (!rest.empty()) {
        const auto end = std::find_if(rest.begin(), rest.end(), IsBlank);
        const auto length = static_cast<std::size_t>(end - rest.begin());
        if (searched.find(LowerText(rest.substr(0, length))) == String::npos) return false;
        rest = TrimStart(rest.substr(length));
    }
    return true;
}

int FirstPlate(const LibraryListing& library) {
    const auto& plates = library.plates;
    const auto best = std::max_element(plates.begin(), plates.end(), [](auto& a, auto& b) {
        return Suitability(a) < Suitability(b);
    });
    if (best == plates.end() || Suitability(*best) == 0) return -1;
    return static_cast<int>(best - plates.begin());
}

int PlateOrFirst(const LibraryListing& library, std::string_view name) {
    const auto& plates = library.plates;
    const auto wanted = std::find_if(plates.begin(), plates.end(), [name](auto& plate) {
        return plate.found && EqualNoCase(plate.name, name);
    });
    if (wanted == plates.end()) return FirstPlate(library);
    return static_cast<int>(wanted - plates.begin());
}

} // namespace zorvane::viewer
