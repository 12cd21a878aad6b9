#include "control/LegendLabels.h"

#include "control/layout/LegendOrder.h"

namespace zorvane {

namespace {

const Label& LabelNumber(const Plate& plate, Integer number) {
    return plate.Elements().lblWell[static_cast<std::size_t>(number)];
}

} // namespace

const Label& RowLegend(const Plate& plate, Integer row) {
    return LabelNumber(plate, RowLegendNumber(row, plate.Rows, plate.Cols));
}

const Label& ColumnLegend(const Plate& plate, Integer col) {
    return LabelNumber(plate, ColumnLegendNumber(col, plate.Rows));
}

} // namespace zorvane
