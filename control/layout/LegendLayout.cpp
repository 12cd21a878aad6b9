#include "control/layout/LegendLayout.h"

#include "control/layout/LegendOrder.h"
#include "runtime/Checked.h"
#include "runtime/Rounding.h"

#include <algorithm>

namespace zorvane {

namespace {

constexpr Single kLegendGap = 45;
constexpr Single kLeastLegendLeft = 15;
constexpr Single kColumnLegendDrop = 30;

} // namespace

void LegendLayout::Anchor(const cmPlate& plate, Single scale) {
    Coordinate low;
    Coordinate high;
    plate.WellEnvelope(Checked(fields_.Rows) - 1, 0, low, high);
    const Double width = surface_.lblWell[0].box.width;
    rowLeft_ = std::max(ToSingle(Double{low.X()} * scale - width - kLegendGap), kLeastLegendLeft);
    columnTop_ = ToSingle(Double{high.Y()} * scale);
    columnLeft_ = ToSingle((Double{high.X()} + low.X()) * scale / 2 - width / 2);
}

void LegendLayout::Create() {
    const Integer labels = Checked(1) + std::max<Integer>(fields_.Rows, 0) +
                           (fields_.Rows > 0 ? std::max<Integer>(fields_.Cols, 0) : Integer{0});
    surface_.CreateLegends(static_cast<std::size_t>(labels));
    count_ = std::max(count_, labels);
}

// Large plates show every second legend only.
Integer LegendLayout::Step() const { return fields_.Rows < 25 && fields_.Cols < 17 ? 1 : 2; }

void LegendLayout::PlaceColumns(const cmPlate& plate, Integer columnPitch) {
    for (Integer column = 0; column < fields_.Cols; ++column) {
        const Integer number = ColumnLegendNumber(column, fields_.Rows);
        Label& legend = Legend(number);
        legend.visible = (number - 1) % Step() == 0;
        legend.caption = plate.ColumnLegend(column);
        const Integer offset = Checked(columnPitch) * column;
        legend.box.left = OnSurface(Double{columnLeft_} + offset);
        legend.box.top = OnSurface(Double{columnTop_} + kColumnLegendDrop);
    }
    // Column legends are never brought to the front, so the wells lie over them.
    Paint(surface_.paintOrder.begin(), ColumnLegendNumber(0, fields_.Rows), fields_.Cols);
}

void LegendLayout::PlaceRow(const cmPlate& plate, Integer row, Single y) {
    const Integer number = RowLegendNumber(row, fields_.Rows, std::max<Integer>(fields_.Cols, 0));
    Label& legend = Legend(number);
    legend.visible = number % Step() == 0;
    legend.caption = plate.RowLegend(row);
    legend.box.top = OnSurface(y - Double{legend.box.height} / 2);
    legend.box.left = rowLeft_;
    Paint(surface_.paintOrder.end(), number, 1);
}

Label& LegendLayout::Legend(Integer number) {
    return surface_.lblWell[static_cast<std::size_t>(number)];
}

void LegendLayout::Paint(std::vector<PaintRun>::iterator before, Integer first, Integer count) {
    if (count < 1) return;
    const auto& labels = surface_.lblWell;
    const Rect bounds = Union(labels[static_cast<std::size_t>(first)].box,
                              labels[static_cast<std::size_t>(first + count - 1)].box);
    surface_.paintOrder.insert(before, {PaintRun::Kind::Legends, first, count, Integer{0}, bounds});
}

} // namespace zorvane
