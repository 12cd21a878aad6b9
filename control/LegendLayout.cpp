#include "control/LegendLayout.h"

#include "runtime/Checked.h"
#include "runtime/Rounding.h"

#include <algorithm>

namespace zorvane {

namespace {

constexpr Single kLegendGap = 45;
constexpr Single kLeastLegendLeft = 15;
constexpr Single kColumnLegendDrop = 30;

} // namespace

void LegendLayout::Anchor() {
    Coordinate low;
    Coordinate high;
    state_.Definition().WellEnvelope(Checked(state_.Rows) - 1, 0, low, high);
    const Double scale = state_.DrawingScale;
    const Double width = surface_.lblWell[0].box.width;
    rowLeft_ = std::max(ToSingle(low.X() * scale - width - kLegendGap), kLeastLegendLeft);
    columnTop_ = ToSingle(high.Y() * scale);
    columnLeft_ = ToSingle((Double{high.X()} + low.X()) * scale / 2 - width / 2);
}

// Large plates show every second legend only.
Integer LegendLayout::Step() const { return state_.Rows < 25 && state_.Cols < 17 ? 1 : 2; }

void LegendLayout::Begin() {
    const Integer labels = Checked(1) + std::max<Integer>(state_.Rows, 0) +
                           (state_.Rows > 0 ? std::max<Integer>(state_.Cols, 0) : Integer{0});
    surface_.CreateLegends(static_cast<std::size_t>(labels));
    if (labels > state_.LabelCount) state_.LabelCount = labels;
    next_ = 1;
}

// The column legends stand between the row legends of the last two rows, so a step of 2 shows
// every second one of each kind only by the way they are counted.
void LegendLayout::PlaceColumns() {
    const Integer first = next_;
    for (Integer column = 0; column < state_.Cols; ++column) {
        const Integer number = next_;
        Label& legend = Next();
        legend.visible = (number - 1) % Step() == 0;
        legend.caption = state_.Definition().ColumnLegend(column);
        const Integer offset = Checked(state_.ColumnPitch) * column;
        legend.box.left = OnSurface(Double{columnLeft_} + offset);
        legend.box.top = OnSurface(Double{columnTop_} + kColumnLegendDrop);
    }
    // Column legends are never brought to the front, so the wells lie over them.
    Paint(surface_.paintOrder.begin(), first, state_.Cols);
}

void LegendLayout::PlaceRow(Integer row, Single y) {
    const Integer number = next_;
    Label& legend = Next();
    legend.visible = number % Step() == 0;
    legend.caption = state_.Definition().RowLegend(row);
    legend.box.top = OnSurface(y - Double{legend.box.height} / 2);
    legend.box.left = rowLeft_;
    Paint(surface_.paintOrder.end(), number, 1);
}

Label& LegendLayout::Next() { return surface_.lblWell[static_cast<std::size_t>(next_++)]; }

void LegendLayout::Paint(std::vector<PaintRun>::iterator before, Integer first, Integer count) {
    if (count < 1) return;
    const auto& labels = surface_.lblWell;
    const Rect bounds = Union(labels[static_cast<std::size_t>(first)].box,
                              labels[static_cast<std::size_t>(first + count - 1)].box);
    surface_.paintOrder.insert(before, {PaintRun::Kind::Legends, first, count, Integer{0}, bounds});
}

} // namespace zorvane
