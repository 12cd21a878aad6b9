#include "hosts/qt/aids/SelectionAids.h"

#include <algorithm>

namespace zorvane {

void SelectionAids::ExtendTo(Integer wellNo, bool keepOthers) {
    if (!anchor_) anchor_ = plate_.CurrentWell();
    plate_.CurrentWell(*anchor_);
    const Integer row = plate_.Row();
    const Integer col = plate_.Col();
    if (!keepOthers) plate_.ClearSelection();
    plate_.CurrentWell(wellNo);
    const Block block{std::min(row, plate_.Row()), std::min(col, plate_.Col()),
                      std::max(row, plate_.Row()), std::max(col, plate_.Col())};
    SelectBlock(block, plate_.WellIndex());
    plate_.CurrentWell(wellNo);
}

void SelectionAids::SelectLine(GridLine line, bool keepOthers) {
    const Integer current = plate_.CurrentWell();
    if (!keepOthers) plate_.ClearSelection();
    const auto lastRow = static_cast<Integer>(plate_.Rows - 1);
    const auto lastCol = static_cast<Integer>(plate_.Cols - 1);
    const Block block = line.isRow ? Block{line.number, 0, line.number, lastCol}
                                   : Block{0, line.number, lastRow, line.number};
    SelectBlock(block, std::max<Integer>(1, plate_.WellIndex()));
    plate_.CurrentWell(current);
}

void SelectionAids::SelectAll() {
    const Integer current = plate_.CurrentWell();
    const Block all{0, 0, static_cast<Integer>(plate_.Rows - 1),
                    static_cast<Integer>(plate_.Cols - 1)};
    for (Integer subWell = 1; subWell <= plate_.SubWellCount; ++subWell)
        SelectBlock(all, subWell);
    plate_.CurrentWell(current);
}

void SelectionAids::SelectWells(const std::vector<Integer>& wells) {
    const Integer current = plate_.CurrentWell();
    plate_.ClearSelection();
    for (const Integer well : wells) {
        if (plate_.IsSelected(well)) continue;
        plate_.CurrentWell(well);
        plate_.SetWell(plate_.Row(), plate_.Col(), plate_.SubWell(), wsAddToSelection);
    }
    plate_.CurrentWell(current);
}

bool SelectionAids::Any() const {
    for (Integer well = 0; well < plate_.TotalWells(); ++well)
        if (plate_.IsSelected(well)) return true;
    return false;
}

void SelectionAids::SelectBlock(const Block& block, Integer subWell) {
    plate_.WellIndex(subWell);
    const String name = plate_.SubWell();
    for (Integer row = block.top; row <= block.bottom; ++row) {
        for (Integer col = block.left; col <= block.right; ++col) {
            plate_.SetWell(row, col, name, wsSilent);
            if (!plate_.WellSelected()) plate_.SetWell(row, col, name, wsAddToSelection);
        }
    }
}

} // namespace zorvane
