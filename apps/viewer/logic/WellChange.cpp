#include "apps/viewer/logic/WellChange.h"

#include <algorithm>

namespace zorvane::viewer {

namespace {

WellState StateOf(const PlateWells& plate) {
    WellState state;
    state.current = plate.current;
    for (std::size_t well = 0; well < plate.wells.size(); ++well)
        if (plate.wells[well].selected) state.selection.push_back(static_cast<Integer>(well));
    return state;
}

} // namespace

PlateWells CaptureAll(const Plate& plate) {
    PlateWells all;
    all.current = plate.CurrentWell();
    for (Integer well = 0; well < plate.TotalWells(); ++well)
        all.wells.push_back(Capture(plate, well));
    return all;
}

WellChange::WellChange(const PlateWells& then, const PlateWells& now)
    : before(StateOf(then)), after(StateOf(now)) {
    const std::size_t count = std::min(then.wells.size(), now.wells.size());
    for (std::size_t well = 0; well < count; ++well) {
        if (then.wells[well] == now.wells[well]) continue;
        before.wells[static_cast<Integer>(well)] = then.wells[well];
        after.wells[static_cast<Integer>(well)] = now.wells[well];
    }
}

bool WellChange::Append(const WellChange& next) {
    const bool sameWells = std::equal(
        after.wells.begin(), after.wells.end(), next.before.wells.begin(), next.before.wells.end(),
        [](const auto& mine, const auto& other) { return mine.first == other.first; });
    if (sameWells) after = next.after;
    return sameWells;
}

} // namespace zorvane::viewer
