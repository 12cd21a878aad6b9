#include "control/ControlFixture.h"

#include <tuple>

namespace zorvane {
namespace {

using CurrentWellTest = ControlTest;

TEST_F(CurrentWellTest, ANumberGivesRowColumnAndSubWell) {
    Load(DropOnReservoir());
    const auto number = [&](Integer well, Integer row, Integer col, Integer index) {
        plate.CurrentWell(well);
        EXPECT_EQ(plate.CurrentWell(), well);
        EXPECT_EQ(std::tuple(plate.Row(), plate.Col(), plate.WellIndex()),
                  std::tuple(row, col, index))
            << well;
    };
    number(0, 0, 0, 1);
    number(95, 7, 11, 1);
    number(100, 0, 4, 2);
    number(-1, 0, -1, 1);
    number(-13, -1, -1, 1);
    number(200, 0, 8, 3);
}

TEST_F(CurrentWellTest, WithoutAGridEverythingButTheNumberIsZero) {
    plate.CurrentWell(5);
    EXPECT_EQ(plate.CurrentWell(), 5);
    EXPECT_EQ(plate.Col(), 0);
    EXPECT_EQ(plate.WellIndex(), 0);
    EXPECT_EQ(plate.Location(), "Default, 0, 0");
    EXPECT_EQ(NumberRaisedBy([&] { plate.WellIndex(0); }), 91); // no plate, no last sub-well
}

TEST_F(CurrentWellTest, RowColumnAndSubWellGiveTheNumberUnchecked) {
    Load(DropOnReservoir());
    plate.WellIndex(0);
    EXPECT_EQ(plate.WellIndex(), 2);
    plate.Row(2);
    plate.Col(5);
    EXPECT_EQ(plate.CurrentWell(), 96 + 2 * 12 + 5);
    EXPECT_EQ(plate.Location(), "Reservoir, 2, 5");
    plate.Col(500);
    EXPECT_EQ(plate.CurrentWell(), 96 + 2 * 12 + 500);
    EXPECT_EQ(NumberRaisedBy([&] { plate.Row(2731); }), 6);
    EXPECT_EQ(NumberRaisedBy([&] { plate.WellIndex(400); }), 6);
}

TEST_F(CurrentWellTest, SubWellsAreFoundByName) {
    Load(GridText(8, 12, SubWellText("Drop1", 10, 10, 6) + SubWellText("Default", 10, 10, 6)));
    const auto finds = [&](Integer before, const char* name, Integer index) {
        plate.SetWell(1, 2);
        if (before == 0) plate.PlateClassText(plate.PlateClassText()); // back at the first well
        if (before == 2) plate.WellIndex(2);
        plate.SubWell(name);
        EXPECT_EQ(plate.WellIndex(), index) << name;
        EXPECT_EQ(plate.CurrentWell(), (index - 1) * 96 + (before == 0 ? 0 : 14)) << name;
    };
    finds(2, "", 1);
    finds(1, "DEFAULT", 2);
    finds(2, "drop1", 1);
    finds(0, "Other", 1); // the present sub-well reads as "Default"
    finds(2, "Other", 1); // and so it does when it is called so
    finds(1, "Other", 3); // beyond the last sub-well
    EXPECT_EQ(NumberRaisedBy([&] { plate.SubWell(); }), 9);
    EXPECT_EQ(NumberRaisedBy([&] { plate.SubWell("Other"); }), 9);
}

TEST_F(CurrentWellTest, ArrowKeysAndTheirCharactersMoveWithinTheGrid) {
    Load(DropOnReservoir());
    const auto moves = [&](Integer code, Integer row, Integer col, Integer newRow, Integer newCol) {
        for (const Boolean typed : {false, true}) {
            plate.SetWell(row, col, "Reservoir", wsSilent);
            typed ? plate.CharacterTyped(code) : plate.KeyDown(code, kCtrlKey);
            EXPECT_EQ(std::pair(plate.Row(), plate.Col()), std::pair(newRow, newCol)) << code;
            EXPECT_EQ(plate.CurrentWell(), 96 + newRow * 12 + newCol) << code;
        }
    };
    moves(38, 0, 3, 0, 3);
    moves(38, 1, 3, 0, 3);
    moves(40, 7, 3, 7, 3);
    moves(40, 6, 3, 7, 3);
    moves(37, 2, 0, 2, 0);
    moves(37, 2, 1, 2, 0);
    moves(39, 2, 11, 2, 11);
    moves(39, 2, 10, 2, 11);
    moves(13, 2, 2, 2, 2);
    moves('A', 2, 2, 2, 2);
    EXPECT_EQ(events.Take(), "");
    EXPECT_EQ(Selected(), "0:");
}

} // namespace
} // namespace zorvane
