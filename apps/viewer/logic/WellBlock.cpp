#include "apps/viewer/logic/WellBlock.h"

#include <algorithm>

namespace zorvane::viewer {

WellBlock SuggestedBlock(const Plate& plate) {
    int left = plate.Col();
    int right = left;
    int top = plate.Row();
    int bottom = top;
    bool any = false;
    for (Integer well = 0; well < plate.TotalWells(); ++well) {
        if (!plate.IsSelected(well)) continue;
        if (well / (plate.Rows * plate.Cols) + 1 != plate.WellIndex()) continue;
        const int column = well % plate.Cols;
        const int row = well / plate.Cols % plate.Rows;
        left = any ? std::min(left, column) : column;
        right = any ? std::max(right, column) : column;
        top = any ? std::min(top, row) : row;
        bottom = any ? std::max(bottom, row) : row;
        any = true;
    }
    return {left, top, right - left + 1, bottom - top + 1};
}

} // namespace zorvane::viewer
