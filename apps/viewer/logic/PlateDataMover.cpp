#include "apps/viewer/logic/PlateDataMover.h"

#include "apps/viewer/logic/WellSnapshot.h"
#include "control/WellGrid.h"

#include <optional>
#include <vector>

namespace zorvane::viewer {

namespace {

struct Move {
    Integer source;
    Integer target;
    WellSnapshot well;
};

/// The well that many columns and rows away in the same sub-well; none outside the plate.
std::optional<Integer> WellAway(const Plate& plate, Integer well, int columns, int rows) {
    const WellGrid grid{plate.Rows, plate.Cols};
    const WellPlace place = grid.PlaceOf(well);
    const int column = place.col + columns;
    const int row = place.row + rows;
    if (column < 0 || column >= plate.Cols || row < 0 || row >= plate.Rows) return std::nullopt;
    return grid.NumberOf({place.subWell, static_cast<Integer>(row), static_cast<Integer>(column)});
}

std::optional<std::vector<Move>> MovesOfSelection(const Plate& plate, int columns, int rows) {
    std::vector<Move> moves;
    for (Integer well = 0; well < plate.TotalWells(); ++well) {
        if (!plate.IsSelected(well)) continue;
        const auto target = WellAway(plate, well, columns, rows);
        if (!target) return std::nullopt;
        moves.push_back({well, *target, Capture(plate, well)});
    }
    return moves;
}

} // namespace

bool MoveSelectedWells(Plate& plate, Integer columns, Integer rows) {
    // All wells are read before one is written, as the places left and taken may overlap.
    const auto moves = MovesOfSelection(plate, columns, rows);
    if (!moves) return false;

    Integer current = plate.CurrentWell();
    if (plate.IsSelected(current)) current = *WellAway(plate, current, columns, rows);
    for (const Move& move : *moves)
        Restore(plate, move.source, EmptyWell(plate));
    for (const Move& move : *moves)
        Restore(plate, move.target, move.well);
    plate.CurrentWell(current);
    return true;
}

} // namespace zorvane::viewer
