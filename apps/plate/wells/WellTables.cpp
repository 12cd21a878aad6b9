#include "apps/plate/wells/WellTables.h"

#include "apps/plate/Files.h"
#include "model/DropCentre.h"

#include <cstdint>
#include <limits>

namespace zorvane {

namespace {

/// Well numbers have 16 bits, which also bounds the table.
void CheckCount(const cmPlate& plate, Long wellsInEach) {
    constexpr std::int64_t most = std::numeric_limits<Integer>::max();
    const std::int64_t wells = std::int64_t{plate.Rows()} * plate.Cols() * wellsInEach;
    if (wells > most)
        Fail("it has " + std::to_string(wells) + " wells, of which 32767 can be numbered");
}

template <class AddRow>
void ForEachPosition(const cmPlate& plate, AddRow addRow) {
    for (Integer row = 0; row < plate.Rows(); ++row) {
        for (Integer col = 0; col < plate.Cols(); ++col)
            addRow(row, col);
    }
}

std::vector<Cell> PositionRow(const cmPlate& plate, Integer row, Integer col) {
    Coordinate low;
    Coordinate high;
    plate.WellEnvelope(row, col, low, high);
    const Coordinate centre = plate.WellCentroid(row, col);
    return {plate.WellLegend(row, col),
            row,
            col,
            centre.X(),
            centre.Y(),
            low.X(),
            low.Y(),
            high.X(),
            high.Y()};
}

std::vector<Cell> SubWellRow(const cmPlate& plate, const WellDetails& subWell, Integer row,
                             Integer col) {
    const Coordinate centre = DropCentre(plate, subWell, row, col);
    return {plate.WellLegend(row, col),
            subWell.WellName(),
            row,
            col,
            centre.X(),
            centre.Y(),
            centre.Z(),
            subWell.WellSizeX(),
            subWell.WellSizeY(),
            subWell.Depth(),
            subWell.MaxVolume()};
}

} // namespace

Table PositionTable(const cmPlate& plate) {
    CheckCount(plate, 1);
    Table table{{"well", "row", "column", "x", "y", "xmin", "ymin", "xmax", "ymax"}, {}};
    ForEachPosition(plate, [&](Integer row, Integer col) {
        table.rows.push_back(PositionRow(plate, row, col));
    });
    return table;
}

Table SubWellTable(const cmPlate& plate) {
    CheckCount(plate, plate.CompoundWell()->Count());
    Table table{
        {"well", "sub-well", "row", "column", "x", "y", "z", "size-x", "size-y", "depth", "volume"},
        {}};
    for (const auto& subWell : *plate.CompoundWell()) {
        ForEachPosition(plate, [&](Integer row, Integer col) {
            table.rows.push_back(SubWellRow(plate, *subWell, row, col));
        });
    }
    return table;
}

} // namespace zorvane
