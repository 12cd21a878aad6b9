#include "control/layout/SubWellDrawing.h"

#include "Test.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

struct Sizes {
    Single sizeX, sizeY, rimWidth, rimHeight;
};

struct Scaling {
    Single scale = 50, columnPitch = 9, rowPitch = 9, pixelX = 15, pixelY = 15;
};

SubWellDrawing Draw(const Sizes& sizes, const Scaling& scaling) {
    WellDetails well;
    well.WellSizeX(sizes.sizeX);
    well.WellSizeY(sizes.sizeY);
    well.RimWidth(sizes.rimWidth);
    well.RimHeight(sizes.rimHeight);
    return DrawSubWell(
        well,
        {scaling.scale, scaling.pixelX, scaling.pixelY, 195, scaling.columnPitch, scaling.rowPitch},
        {});
}

TEST(SubWellDrawing, HalfSizesOfWellAndRim) {
    const auto draws = [](const Sizes& sizes, const Scaling& scaling, Integer well, Integer rimX,
                          Integer rimY, Boolean border) {
        const SubWellDrawing drawing = Draw(sizes, scaling);
        EXPECT_TRUE(drawing.wellHalfSize == well && drawing.rimHalfWidth == rimX &&
                    drawing.rimHalfHeight == rimY && drawing.bottomBorder == border)
            << sizes.sizeX << " by " << sizes.sizeY << ", rim " << sizes.rimWidth << ": "
            << drawing.wellHalfSize << ", " << drawing.rimHalfWidth << ", " << drawing.rimHalfHeight
            << ", " << drawing.bottomBorder;
    };
    draws({6, 6, 1, 1}, {}, 150, 195, 195, true);
    draws({5.25, 5.25, 1, 1}, {60}, 150, 210, 210, true);  // 10.5 and 14.5 pixels round to even
    draws({5.75, 5.75, 1, 1}, {60}, 180, 240, 240, true);  // and so do 11.5 and 15.5
    draws({0.2F, 0.2F, 0, 0}, {}, 15, 45, 45, false);      // no pixel
    draws({0.6F, 0.6F, 0, 0}, {}, 30, 60, 60, true);       // one
    draws({1.2F, 1.2F, 0, 0}, {}, 45, 75, 75, true);       // two
    draws({1.8F, 1.8F, 0, 0}, {}, 15, 45, 45, false);      // three: the well makes room for its rim
    draws({6, 6, 0.2F, 0.2F}, {}, 135, 165, 165, true);    // a thin rim shrinks the well
    draws({6, 8, 1, 1}, {50, 9, 12}, 150, 195, 255, true); // the Y size shapes the rim alone
    draws({6, 2, 1, 1}, {}, 150, 195, 180, true);          // a low rim stands out by the margin
    draws({9, 9, 1, 1}, {}, 225, 240, 240, true);          // wider than the pitch
    draws({7.6F, 2, 1, 1}, {50, 9.3F}, 195, 240, 225, true);    // one pixel wider is kept
    draws({4, 6, 0.8F, 0.8F}, {50, 6, 4}, 105, 135, 165, true); // height cut to the column pitch
    draws({4, 6, 0.8F, 0.8F}, {50, 6.02F, 4}, 105, 135, 165, true);  // odd: halved downwards
    draws({5, 5, 1, 1.3F}, {50, 9, 9, 12, 10}, 120, 180, 192, true); // both snap along X
    draws({5, 5, 1, 1}, {50, 9, 9, 7.5, 7.5}, 128, 172, 172, true);
    draws({0.4F, 0.4F, 0, 0}, {50, 9, 9, 7.5, 7.5}, 16, 46, 46, false);
}

TEST(SubWellDrawing, TextBoxGrowsWithTheWell) {
    EXPECT_FALSE(Draw({4.8F, 4.8F, 1, 1}, {}).textShown); // 0.49 lines
    const auto text = [](Single size, Integer width, Integer height) {
        const SubWellDrawing drawing = Draw({size, size, 1, 1}, {50, 200, 200});
        EXPECT_TRUE(drawing.textShown) << size;
        EXPECT_EQ(drawing.textWidth, width) << size;
        EXPECT_EQ(drawing.textHeight, height) << size;
    };
    text(6, 270, 195);      // 0.62 lines
    text(19.2F, 862, 390);  // 2 lines; 862.5 rounds to even
    text(29.4F, 1372, 390); // 3 lines
    text(39, 1852, 585);    // 4 lines
    text(78, 3802, 585);    // 8 lines
    text(87.6F, 4282, 780); // 9 lines
    text(150, 7402, 780);   // 15 lines
}

TEST(SubWellDrawing, FailsWhenASizeDoesNotFit) {
    const auto fails = [](const Sizes& sizes, const Scaling& scaling, const char* what) {
        EXPECT_EQ(NumberRaisedBy([&] { Draw(sizes, scaling); }), 6) << what;
    };
    fails({1400, 1, 1, 1}, {}, "well");
    fails({660, 1, 1, 1}, {}, "rim width");
    fails({1, 660, 1, 1}, {}, "rim height");
    fails({1, 1, 1, 1}, {50, 656, 9}, "column pitch");
    fails({1, 1, 1, 1}, {50, 9, 656}, "row pitch");
    fails({1, 12, 1, 1}, {50, 655.34F, 9}, "height cut to a very large column pitch");
}

} // namespace
} // namespace zorvane
