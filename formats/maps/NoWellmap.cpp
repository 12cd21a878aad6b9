#include "formats/PlateSource.h"
#include "formats/maps/PlateMap.h"

/// What a build without the TOML library has of wellmap.
namespace zorvane {

bool HasWellmap() { return false; }

std::vector<MappedWell> ReadWellmap(std::string_view, const String&) {
    RefuseSource("this build has no TOML");
}

} // namespace zorvane
