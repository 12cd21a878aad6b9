#include "apps/viewer/logic/Walk.h"

#include "apps/LoadedPlate.h"

#include <gtest/gtest.h>

#include <string>

namespace zorvane::viewer {
namespace {

TEST(Walk, PreviewsWhatAnArrayFillWrites) {
    for (int order = foTopLeftHorizontal; order <= foBottomRightVertical; ++order) {
        LoadedPlate host;
        host.plate.SetArray(1, 1, 4, 3, "Drop1", order);
        host.plate.FillArray(-1, "#");
        const Walk walk{static_cast<ArrayFillOrder>(order), 4, 3};
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 4; ++column) {
                EXPECT_EQ(
                    std::to_string(walk.NumberAt(row, column)),
                    host.plate.WellAnnotation(static_cast<Integer>((row + 1) * 6 + column + 1)))
                    << "order " << order << ", row " << row << ", column " << column;
            }
        }
    }
}

TEST(Walk, LeavesTheMiddleOfALargeBlockOut) {
    using Places = std::vector<std::optional<int>>;
    EXPECT_EQ(ShownPlaces(3, 5), (Places{0, 1, 2}));
    EXPECT_EQ(ShownPlaces(5, 5), (Places{0, 1, 2, 3, 4}));
    EXPECT_EQ(ShownPlaces(24, 5), (Places{0, 1, std::nullopt, 22, 23}));
    EXPECT_EQ(ShownPlaces(24, 6), (Places{0, 1, 2, std::nullopt, 22, 23}));
}

} // namespace
} // namespace zorvane::viewer
