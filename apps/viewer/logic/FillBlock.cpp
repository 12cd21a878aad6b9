#include "apps/viewer/logic/FillBlock.h"

#include "control/WellGrid.h"

#include <algorithm>
#include <vector>

namespace zorvane::viewer {

FillBlock SuggestedBlock(const Plate& plate) {
    const WellGrid grid{plate.Rows, plate.Cols};
    std::vector<WellPlace> places;
    for (Integer well = 0; well < plate.TotalWells(); ++well) {
        const WellPlace place = grid.PlaceOf(well);
        if (plate.IsSelected(well) && place.subWell == plate.WellIndex()) places.push_back(place);
    }
    if (places.empty()) places.push_back({plate.WellIndex(), plate.Row(), plate.Col()});
    // Well numbers go row by row, so that only the columns have to be searched.
    const auto [left, right] =
        std::minmax_element(places.begin(), places.end(),
                            [](const auto& one, const auto& other) { return one.col < other.col; });
    const int top = places.front().row;
    return {left->col, top, right->col - left->col + 1, places.back().row - top + 1};
}

} // namespace zorvane::viewer
