#include "control/ControlFixture.h"

namespace zorvane {
namespace {

class ArrayFillTest : public ControlTest {
  protected:
    ArrayFillTest() { Load(DropOnReservoir()); }

    /// The annotations of a block in the reservoirs, row by row.
    String Captions(Integer x, Integer y, Integer width, Integer height) const {
        String captions;
        for (int row = y; row < y + height; ++row) {
            for (int col = x; col < x + width; ++col)
                captions += plate.WellAnnotation(static_cast<Integer>(96 + row * 12 + col)) + " ";
        }
        return captions;
    }
};

TEST_F(ArrayFillTest, SetArraySelectsABlockOfASubWell) {
    plate.SetWell(0, 0, "Reservoir");
    plate.SetArray(10, 6, 2, 2, "reservoir", foBottomLeftVertical, 0x0000FF);
    EXPECT_EQ(Selected(), "5: 96 178 179 190 191");
    EXPECT_EQ(plate.CurrentWell(), 191);
    EXPECT_EQ(Shown().WellRim[178].fill, plate.DefaultSelectColor);
    EXPECT_EQ(Shown().WellBottom[178].fill, 0x0000FF);
    EXPECT_EQ(plate.ArraySubwell(), ""); // hosts read SubWell
    EXPECT_EQ(plate.SubWell(), "Reservoir");
    EXPECT_EQ(events.Take(), "");

    // Wells selected before are neither coloured nor counted again.
    plate.SetArray(9, 6, 2, 1, "Reservoir", foTopLeftHorizontal, 0x00FF00);
    EXPECT_EQ(Selected(), "6: 96 177 178 179 190 191");
    EXPECT_EQ(Shown().WellBottom[177].fill, 0x00FF00);
    EXPECT_EQ(Shown().WellBottom[178].fill, 0x0000FF);
    plate.SetArray(0, 0, 1, 1, ""); // no colour
    EXPECT_EQ(Shown().WellBottom[0].fill, plate.DefaultWellColor());
}

TEST_F(ArrayFillTest, ABlockOutsideThePlateIsRefusedButRecorded) {
    const auto sets = [&](int x, int y, int width, int height, Long number) {
        const auto set = [&] {
            plate.SetArray(static_cast<Integer>(x), static_cast<Integer>(y),
                           static_cast<Integer>(width), static_cast<Integer>(height), "Reservoir");
        };
        EXPECT_EQ(NumberRaisedBy(set), number) << x << ", " << y;
        EXPECT_TRUE(plate.ArrayX() == x && plate.ArrayY() == y && plate.ArrayWidth() == width &&
                    plate.ArrayHeight() == height && plate.SubWell() == "Reservoir")
            << x << ", " << y;
        EXPECT_EQ(Selected(), "0:");
    };
    sets(11, 0, 2, 1, 2999);
    sets(0, 7, 1, 2, 2999);
    sets(-1, 0, 1, 1, 2999);
    sets(0, -1, 1, 1, 2999);
    sets(32767, 0, 1, 1, 6);
    sets(0, 32767, 1, 1, 6);
    sets(5, 5, 0, 3, 0);
    sets(12, 8, -1, -32768, 0);
    try {
        plate.SetArray(10, 0, 300, 1, "");
        ADD_FAILURE() << "not refused";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Source(), "Zorvane::SelectBlock");
        EXPECT_EQ(error.Description(), "Attempt to select wells outside <Demo> plate");
    }
    EXPECT_EQ(NumberRaisedBy([&] { plate.FillArray(1); }), 9);
}

TEST_F(ArrayFillTest, WalksInEightOrders) {
    const char* orders[] = {"1 2 3 4 5 6 ", "1 3 5 2 4 6 ", "3 2 1 6 5 4 ", "5 3 1 6 4 2 ",
                            "4 5 6 1 2 3 ", "2 4 6 1 3 5 ", "6 5 4 3 2 1 ", "6 4 2 5 3 1 "};
    const Integer lastWells[] = {130, 130, 128, 128, 118, 118, 116, 116};
    for (Long order = 0; order < 8; ++order) {
        SCOPED_TRACE(order);
        plate.SetArray(8, 1, 3, 2, "Reservoir", order);
        plate.FillArray(kNoColor, "#");
        EXPECT_EQ(Captions(8, 1, 3, 2), orders[order]);
        EXPECT_EQ(plate.CurrentWell(), lastWells[order]);
    }
    for (const Long order : {-1, 8}) {
        plate.SetArray(8, 1, 3, 2, "Reservoir", order);
        plate.CurrentWell(0);
        plate.FillArray(1, "");
        EXPECT_EQ(plate.CurrentWell(), 0);
        EXPECT_EQ(Captions(8, 1, 3, 2), orders[7]);
    }
}

TEST_F(ArrayFillTest, FillsFromStartToStop) {
    const auto fills = [&](const char* text, Integer start, Integer stop, const char* captions) {
        plate.SetArray(0, 0, 2, 2, "Reservoir");
        plate.FillArray(0, "-");
        plate.FillArray(0x0000FF, text, start, stop);
        EXPECT_EQ(Captions(0, 0, 2, 2), captions) << text << " " << start << " " << stop;
    };
    fills("Tip #", 1, -1, "Tip 1 Tip 2 Tip 3 Tip 4 ");
    fills("#/#", 1, -1, "1/# 2/# 3/# 4/# ");
    fills("", 1, -1, "    ");
    fills("x", 1, -1, "x x x x ");
    fills(kNoValue, 1, -1, "- - - - ");
    fills("#", 3, 4, "- - 3 4 ");
    fills("#", 2, 3, "- 2 3 - ");
    fills("#", 0, 2, "1 2 - - ");
    fills("#", -3, -2, "- - - - ");
    fills("#", 4, 3, "- - - - ");
    fills("#", 1, 0, "- - - - ");
    fills("#", 4, 99, "- - - 4 ");
    fills("#", 5, 99, "- - - - ");
}

} // namespace
} // namespace zorvane
