#include "hosts/qt/aids/PlateLegends.h"

namespace zorvane {

namespace {

constexpr Single kReach = 45; // around a legend, so that it is easily hit

bool IsHit(const Label& legend, Single x, Single y) {
    const Rect box = legend.box.Grown(kReach);
    return legend.visible && box.left <= x && x < box.Right() && box.top <= y && y < box.Bottom();
}

} // namespace

std::optional<GridLine> LegendAt(const Plate& plate, Single x, Single y) {
    if (plate.TotalWells() < 1) return std::nullopt;
    for (Integer row = 0; row < plate.Rows; ++row)
        if (IsHit(RowLegend(plate, row), x, y)) return GridLine{true, row};
    for (Integer col = 0; col < plate.Cols; ++col)
        if (IsHit(ColumnLegend(plate, col), x, y)) return GridLine{false, col};
    return std::nullopt;
}

} // namespace zorvane
