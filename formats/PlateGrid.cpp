#include "formats/PlateGrid.h"

#include <algorithm>
#include <cstdlib>

namespace zorvane {

namespace {

using OfPosition = Long WellPosition::*;
using OfWell = ExactNumber SourceWell::*;

GridLines NamesOf(const std::vector<SourceWell>& wells, OfPosition name) {
    const auto [least, greatest] = std::minmax_element(
        wells.begin(), wells.end(), [name](const SourceWell& a, const SourceWell& b) {
            return a.position.*name < b.position.*name;
        });
    GridLines lines;
    lines.first = least->position.*name;
    lines.count = greatest->position.*name - lines.first + 1;
    return lines;
}

/// Each well at its place by name, row by row; refuses gaps and wells that are there twice.
std::vector<const SourceWell*> InOrder(const std::vector<SourceWell>& wells, const GridLines& rows,
                                       const GridLines& cols) {
    const std::int64_t places = std::int64_t{rows.count} * cols.count;
    const auto placeOf = [&](const WellPosition& position) {
        return static_cast<std::size_t>((position.row - rows.first) * cols.count + position.col -
                                        cols.first);
    };
    // A few wells with distant names must not take the memory of all those between them.
    const auto size =
        static_cast<std::size_t>(std::min(places, static_cast<std::int64_t>(wells.size()) + 1));
    std::vector<const SourceWell*> ordered(size);
    for (const SourceWell& well : wells) {
        const std::size_t place = placeOf(well.position);
        if (place >= size) continue;
        if (ordered[place] != nullptr)
            RefuseSource("the well " + PositionName(well.position) + " is there twice");
        ordered[place] = &well;
    }
    const auto gap = std::find(ordered.begin(), ordered.end(), nullptr);
    if (gap == ordered.end()) return ordered;
    const auto place = static_cast<Long>(gap - ordered.begin());
    RefuseSource("the grid is irregular: it has no well " +
                 PositionName({rows.first + place / cols.count, cols.first + place % cols.count}));
}

/// Gives the lines their direction, offset and pitch from the first two names.
void Measure(GridLines& lines, const SourceWell& least, const SourceWell* next, OfWell centre,
             const SourceWell& greatest) {
    lines.countsDown = next != nullptr && (next->*centre).Units() < (least.*centre).Units();
    lines.offset = (lines.countsDown ? greatest : least).*centre;
    if (next == nullptr) return;
    lines.pitch = lines.countsDown ? least.*centre - next->*centre : next->*centre - least.*centre;
    if (lines.pitch.Units() < ExactNumber::kOne / 1000) {
        RefuseSource("the grid is irregular: " + PositionName(least.position) + " and " +
                     PositionName(next->position) + " lie above one another");
    }
}

void RequirePlace(const SourceWell& well, const GridLines& lines, Long name, OfWell centre,
                  const char* edge) {
    const Long place = lines.PlaceOf(name);
    const std::int64_t farthest = ExactNumber::kLargest * ExactNumber::kOne;
    const bool inRange = place == 0 || lines.pitch.Units() <= farthest / place;
    const ExactNumber expected =
        inRange ? ExactNumber(lines.offset.Units() + place * lines.pitch.Units()) : ExactNumber();
    if (inRange && SameNumber(well.*centre, expected)) return;
    RefuseSource("the grid is irregular: " + PositionName(well.position) + " lies " +
                 (well.*centre).Text() + " mm from " + edge + ", and even pitches have it at " +
                 expected.Text());
}

} // namespace

PlateGrid::PlateGrid(const std::vector<SourceWell>& wells) {
    if (wells.empty()) RefuseSource("there are no wells");
    rows = NamesOf(wells, &WellPosition::row);
    cols = NamesOf(wells, &WellPosition::col);
    const auto ordered = InOrder(wells, rows, cols);
    const SourceWell& first = *ordered.front();
    const auto belowFirst = static_cast<std::size_t>(cols.count);
    Measure(rows, first, rows.count > 1 ? ordered[belowFirst] : nullptr, &SourceWell::y,
            *ordered.back());
    Measure(cols, first, cols.count > 1 ? ordered[1] : nullptr, &SourceWell::x,
            *ordered[belowFirst - 1]);
    RequireRegular(wells);
}

void PlateGrid::RequireRegular(const std::vector<SourceWell>& wells) const {
    for (const SourceWell& well : wells) {
        RequirePlace(well, cols, well.position.col, &SourceWell::x, "the left");
        RequirePlace(well, rows, well.position.row, &SourceWell::y, "the top");
    }
}

} // namespace zorvane
