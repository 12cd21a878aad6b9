#include "control/LegendLabels.h"

namespace zorvane {

namespace {

const Label& LabelNumber(const Plate& plate, int number) {
    return plate.Elements().lblWell[static_cast<std::size_t>(number)];
}

} // namespace

// The layout places the column legends between the row legends of the last two rows.

const Label& RowLegend(const Plate& plate, Integer row) {
    return LabelNumber(plate, row < plate.Rows - 1 ? row + 1 : plate.Rows + plate.Cols);
}

const Label& ColumnLegend(const Plate& plate, Integer col) {
    return LabelNumber(plate, plate.Rows + col);
}

} // namespace zorvane
