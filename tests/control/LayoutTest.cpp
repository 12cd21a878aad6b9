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

} // namespace
} // namespace zorvane
