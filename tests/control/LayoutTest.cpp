#include "control/ControlFixture.h"

namespace zorvane {
namespace {

using LayoutTest = ControlTest;

TEST_F(LayoutTest, PlacesEveryWellOfEverySubWell) {
    Load(DropOnReservoir(2, 3));
    EXPECT_EQ(plate.TotalWells(), 12);
    ASSERT_EQ(Shown().WellRim.size(), 12U);
    // Drop1: a half size of 25 snaps to 30 and gains a pixel; its rim of 75 has just the margin.
    EXPECT_EQ(Rim(0), (Rect{400 - 75, 400 - 75, 150, 150}));
    EXPECT_EQ(Rim(5), (Rect{400 + 2 * 450 - 75, 400 + 450 - 75, 150, 150}));
    EXPECT_EQ(Bottom(5), (Rect{1300 - 45, 850 - 45, 90, 90}));
    EXPECT_FALSE(Shown().WellText[5].visible);
    // Reservoir: large enough for a line of text.
    EXPECT_EQ(Rim(6), (Rect{500 - 195, 500 - 195, 390, 390}));
    EXPECT_EQ(Bottom(11), (Rect{1400 - 150, 950 - 150, 300, 300}));
    EXPECT_EQ(Shown().WellText[11].box, (Rect{1400 - 135, 950 - 97.5F, 270, 195}));
    EXPECT_TRUE(Shown().WellText[11].visible);
    for (std::size_t i = 0; i < 12; ++i)
        EXPECT_TRUE(Shown().WellRim[i].visible && Shown().WellBottom[i].visible) << i;
    EXPECT_EQ(Shown().fraPlate.box, (Rect{0, 0, 6000, 4000}));
    EXPECT_EQ(Shown().fraData.caption, "Demo - Details");
    EXPECT_EQ(plate.ZClear, 15);
}

TEST_F(LayoutTest, ABottomWithoutBorderIsAPixelLarger) {
    process.screen.twipsPerPixelX = 12;
    process.screen.twipsPerPixelY = 10;
    Load(GridText(1, 1, SubWellText("Dot", 10, 10, 0.2F)));
    EXPECT_EQ(Bottom(0), (Rect{500 - 12, 500 - 12, 24 + 12, 24 + 10}));
    EXPECT_FALSE(Shown().WellBottom[0].border);
}

TEST_F(LayoutTest, AStyleWithoutShapesTakesThoseOfTheSubWellAfterIt) {
    Load(DropOnReservoir(1, 1));
    const auto firstShapes = [&](Integer firstStyle, Integer secondStyle) {
        plate.WellIndex(1);
        plate.Style(firstStyle);
        plate.WellIndex(2);
        plate.Style(secondStyle);
        plate.DrawingScale(50);
        return std::pair(Shown().WellRim[0].kind, Shown().WellBottom[0].kind);
    };
    EXPECT_EQ(firstShapes(7, 1), std::pair(ShapeKind::Rectangle, ShapeKind::Circle));
    EXPECT_EQ(firstShapes(7, 7), std::pair(ShapeKind::Rectangle, ShapeKind::Rectangle));
}

class LegendTest : public ControlTest {
  protected:
    /// The captions of the visible legends in label order, rows and columns apart.
    std::pair<String, String> VisibleLegends() const {
        std::pair<String, String> seen;
        const auto& labels = Shown().lblWell;
        const auto rows = static_cast<std::size_t>(plate.Rows);
        const std::size_t used = 1 + rows + static_cast<std::size_t>(plate.Cols);
        for (std::size_t i = 0; i < labels.size(); ++i) {
            if (!labels[i].visible) continue;
            EXPECT_TRUE(i > 0 && i < used) << i;
            (i < rows || i == used - 1 ? seen.first : seen.second) += labels[i].caption + " ";
        }
        return seen;
    }
};

TEST_F(LegendTest, LargePlatesShowEverySecondLegend) {
    plate.FixedSize = true;
    const auto shows = [&](int rows, int cols, const char* rowLegends, const char* columnLegends) {
        plate.PlateClassText(DropOnReservoir(rows, cols));
        EXPECT_EQ(VisibleLegends(), std::pair(String(rowLegends), String(columnLegends)));
    };
    shows(8, 12, "A B C D E F G H ", "1 2 3 4 5 6 7 8 9 10 11 12 ");
    shows(24, 16, "A B C D E F G H I J K L M N O P Q R S T U V W X ",
          "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 ");
    shows(16, 24, "B D F H J L N P ", "2 4 6 8 10 12 14 16 18 20 22 24 ");
    shows(2, 17, "", "2 4 6 8 10 12 14 16 ");
    // The last row's legend is counted after the columns.
    shows(25, 3, "B D F H J L N P R T V X Y ", "1 3 ");
    shows(3, 1, "A B C ", "1 ");
}

TEST_F(LegendTest, StandLeftOfTheRowsAndBelowTheColumns) {
    Load(OneDrop(2, 3));
    const auto& labels = Shown().lblWell;
    // The envelope of the last row's first well goes from 6 to 14 mm across and down to 23 mm.
    EXPECT_EQ(labels[1].box, (Rect{300 - 165 - 45, 500 - 97.5F, 165, 195}));
    EXPECT_EQ(labels[5].box, (Rect{90, 950 - 97.5F, 165, 195}));
    EXPECT_EQ(labels[2].box, (Rect{500 - 82.5F, 1150 + 30, 165, 195}));
    EXPECT_EQ(labels[4].box, (Rect{500 - 82.5F + 900, 1180, 165, 195}));

    Load(GridText(2, 3, SubWellText("Left", 5, 10, 6)));
    EXPECT_EQ(labels[1].box.left, 15);
}

TEST_F(LayoutTest, LaterSubWellsAndColumnLegendsLieBehind) {
    Load(DropOnReservoir(2, 2));
    String order;
    for (const PaintRun& run : Shown().paintOrder) {
        order += (run.kind == PaintRun::Kind::Wells ? "wells " : "legends ") +
                 std::to_string(run.first) + "+" + std::to_string(run.count) + ", ";
    }
    EXPECT_EQ(order, "legends 2+2, wells 4+2, wells 6+2, wells 0+2, legends 1+1, wells 2+2, "
                     "legends 4+1, ");
}

TEST_F(LayoutTest, NoTouchedWellIsLeftOutOfARepaint) {
    Load(DropOnReservoir(4, 5));
    Integer touched = 0;
    for (Single x = -400; x < 3000; x += 70) {
        for (Single y = -100; y < 2500; y += 130) {
            const Rect area{x, y, 100, 60};
            for (const PaintRun& run : Shown().paintOrder) {
                if (run.kind != PaintRun::Kind::Wells) continue;
                const auto [from, to] = Shown().Touched(run, area);
                ASSERT_TRUE(from >= 0 && from <= to && to <= run.count);
                for (Integer i = 0; i < run.count; ++i) {
                    const auto well = static_cast<std::size_t>(run.first + i);
                    if (!Shown().WellBox(well).Intersects(area)) continue;
                    ++touched;
                    EXPECT_TRUE(from <= i && i < to) << well << " at " << x << ", " << y;
                }
            }
        }
    }
    EXPECT_GT(touched, 500);
}

} // namespace
} // namespace zorvane
