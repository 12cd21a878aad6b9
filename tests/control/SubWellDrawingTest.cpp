#include "control/SubWellDrawing.h"

#include "Raised.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

struct Sizes {
    Single sizeX;
    Single sizeY;
    Single rimWidth;
    Single rimHeight;
};

struct Scaling {
    Single scale = 50;
    Single columnPitch = 9;
    Single rowPitch = 9;
    Single pixelX = 15;
    Single pixelY = 15;
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
    struct {
        const char* what;
        Sizes sizes;
        Scaling scaling;
        Integer well, rimX, rimY;
        Boolean border;
    } cases[] = {
        {"whole pixels", {6, 6, 1, 1}, {}, 150, 195, 195, true},
        {"10.5 and 14.5 pixels round to even", {5.25, 5.25, 1, 1}, {60}, 150, 210, 210, true},
        {"11.5 and 15.5 pixels round to even", {5.75, 5.75, 1, 1}, {60}, 180, 240, 240, true},
        {"no size", {0.2F, 0.2F, 0, 0}, {}, 15, 45, 45, false},
        {"one pixel", {0.6F, 0.6F, 0, 0}, {}, 30, 60, 60, true},
        {"two pixels", {1.2F, 1.2F, 0, 0}, {}, 45, 75, 75, true},
        {"three pixels: the well makes room for its rim",
         {1.8F, 1.8F, 0, 0},
         {},
         15,
         45,
         45,
         false},
        {"a thin rim shrinks the well", {6, 6, 0.2F, 0.2F}, {}, 135, 165, 165, true},
        {"the Y size shapes the rim alone", {6, 8, 1, 1}, {50, 9, 12}, 150, 195, 255, true},
        {"a low rim stands out by the margin", {6, 2, 1, 1}, {}, 150, 195, 180, true},
        {"wider than the pitch", {9, 9, 1, 1}, {}, 225, 240, 240, true},
        {"one pixel wider than the pitch is kept",
         {7.6F, 2, 1, 1},
         {50, 9.3F},
         195,
         240,
         225,
         true},
        {"the height is cut to the column pitch",
         {4, 6, 0.8F, 0.8F},
         {50, 6, 4},
         105,
         135,
         165,
         true},
        {"an odd pitch is halved downwards",
         {4, 6, 0.8F, 0.8F},
         {50, 6.02F, 4},
         105,
         135,
         165,
         true},
        {"pixels of 12: both directions snap with them",
         {5, 5, 1, 1.3F},
         {50, 9, 9, 12, 10},
         120,
         180,
         192,
         true},
        {"pixels of 7.5", {5, 5, 1, 1}, {50, 9, 9, 7.5, 7.5}, 128, 172, 172, true},
        {"a small well and pixels of 7.5",
         {0.4F, 0.4F, 0, 0},
         {50, 9, 9, 7.5, 7.5},
         16,
         46,
         46,
         false},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        const SubWellDrawing drawing = Draw(each.sizes, each.scaling);
        EXPECT_EQ(drawing.wellHalfSize, each.well);
        EXPECT_EQ(drawing.rimHalfWidth, each.rimX);
        EXPECT_EQ(drawing.rimHalfHeight, each.rimY);
        EXPECT_EQ(drawing.bottomBorder, each.border);
    }
}

TEST(SubWellDrawing, TextBoxGrowsWithTheWell) {
    struct {
        Single size; // at 50 units a millimetre
        Boolean shown;
        Integer width, height;
    } cases[] = {
        {4.8F, false, 0, 0},      // 0.49 lines
        {6, true, 270, 195},      // 0.62 lines
        {19.2F, true, 862, 390},  // 2 lines; 862.5 rounds to even
        {29.4F, true, 1372, 390}, // 3 lines
        {39, true, 1852, 585},    // 4 lines
        {78, true, 3802, 585},    // 8 lines
        {87.6F, true, 4282, 780}, // 9 lines
        {150, true, 7402, 780},   // 15 lines
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.size);
        const SubWellDrawing drawing = Draw({each.size, each.size, 1, 1}, {50, 200, 200});
        EXPECT_EQ(drawing.textShown, each.shown);
        if (!each.shown) continue;
        EXPECT_EQ(drawing.textWidth, each.width);
        EXPECT_EQ(drawing.textHeight, each.height);
    }
}

TEST(SubWellDrawing, OriginTakesOffsetAndRimCentreTogether) {
    WellDetails well;
    well.xOffset(10.01F); // 500.5 on its own
    well.RimCenterX(-0.02F);
    well.yOffset(-3);
    well.RimCenterY(1);
    const SubWellDrawing drawing = DrawSubWell(well, {50, 15, 15, 195, 9, 4.51F}, {});
    EXPECT_EQ(drawing.originX, 500);
    EXPECT_EQ(drawing.originY, -100);
    EXPECT_EQ(drawing.columnPitch, 450);
    EXPECT_EQ(drawing.rowPitch, 226);
}

TEST(SubWellDrawing, FailsWhenASizeDoesNotFit) {
    struct {
        const char* what;
        Sizes sizes;
        Scaling scaling;
    } cases[] = {
        {"well", {1400, 1, 1, 1}, {}},
        {"rim width", {660, 1, 1, 1}, {}},
        {"rim height", {1, 660, 1, 1}, {}},
        {"column pitch", {1, 1, 1, 1}, {50, 656, 9}},
        {"row pitch", {1, 1, 1, 1}, {50, 9, 656}},
        {"height cut to a very large column pitch", {1, 12, 1, 1}, {50, 655.34F, 9}},
    };
    for (const auto& each : cases)
        EXPECT_EQ(NumberRaisedBy([&] { Draw(each.sizes, each.scaling); }), 6) << each.what;
}

TEST(SubWellDrawing, StylesWithoutShapesKeepThoseBefore) {
    using Kind = ShapeKind;
    struct {
        Long style;
        Kind rim, bottom;
    } cases[] = {
        {0, Kind::Circle, Kind::Circle},    {1, Kind::Rectangle, Kind::Circle},
        {2, Kind::Circle, Kind::Rectangle}, {3, Kind::Rectangle, Kind::Rectangle},
        {4, Kind::Rectangle, Kind::Circle}, {-1, Kind::Rectangle, Kind::Circle},
    };
    for (const auto& each : cases) {
        const SubWellShapes shapes = ShapesOfStyle(each.style, {Kind::Rectangle, Kind::Circle});
        EXPECT_EQ(shapes.rim, each.rim) << each.style;
        EXPECT_EQ(shapes.bottom, each.bottom) << each.style;
    }
}

} // namespace
} // namespace zorvane
