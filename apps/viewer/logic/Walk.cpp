#include "apps/viewer/logic/Walk.h"

namespace zorvane::viewer {

int Walk::NumberAt(int row, int column) const {
    const bool fromRight = (order & foTopRightHorizontal) != 0;
    const bool fromBottom = (order & foBottomLeftHorizontal) != 0;
    const bool vertical = (order & foTopLeftVertical) != 0;
    const int along = fromRight ? width - 1 - column : column;
    const int down = fromBottom ? height - 1 - row : row;
    return 1 + (vertical ? along * height + down : down * width + along);
}

std::vector<std::optional<int>> ShownPlaces(int count, int room) {
    std::vector<std::optional<int>> places;
    const bool all = count <= room;
    const int first = all ? count : room / 2;
    places.reserve(static_cast<std::size_t>(all ? count : room));
    for (int i = 0; i < first; ++i)
        places.emplace_back(i);
    if (all) return places;
    places.emplace_back();
    for (int i = count - (room - 1 - first); i < count; ++i)
        places.emplace_back(i);
    return places;
}

} // namespace zorvane::viewer
