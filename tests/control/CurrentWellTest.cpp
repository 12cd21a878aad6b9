#include "control/ControlFixture.h"

namespace zorvane {
namespace {

using CurrentWellTest = ControlTest;

TEST_F(CurrentWellTest, ANumberGivesRowColumnAndSubWell) {
    Load(DropOnReservoir());
    struct {
        Integer well, row, col, index;
    } cases[] = {{0, 0, 0, 1},   {95, 7, 11, 1},   {100, 0, 4, 2},
                 {-1, 0, -1, 1}, {-13, -1, -1, 1}, {200, 0, 8, 3}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.well);
        plate.CurrentWell(each.well);
        EXPECT_EQ(plate.CurrentWell(), each.well);
        EXPECT_EQ(plate.Row(), each.row);
        EXPECT_EQ(plate.Col(), each.col);
        EXPECT_EQ(plate.WellIndex(), each.index);
    }
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
    struct {
        Integer before;
        const char* name;
        Integer index;
    } cases[] = {
        {2, "", 1},      {1, "DEFAULT", 2},
        {2, "drop1", 1}, {0, "Other", 1}, // the present sub-well reads as "Default"
        {2, "Other", 1},                  // and so it does when it is called so
        {1, "Other", 3},                  // beyond the last sub-well
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        plate.SetWell(1, 2);
        if (each.before == 0) plate.PlateClassText(plate.PlateClassText());
        if (each.before == 2) plate.WellIndex(2);
        const Integer inSubWell = each.before == 0 ? Integer{0} : Integer{14};
        plate.SubWell(each.name);
        EXPECT_EQ(plate.WellIndex(), each.index);
        EXPECT_EQ(plate.CurrentWell(), (each.index - 1) * 96 + inSubWell);
    }
    EXPECT_EQ(NumberRaisedBy([&] { plate.SubWell(); }), 9);
    EXPECT_EQ(NumberRaisedBy([&] { plate.SubWell("Other"); }), 9);
    plate.SubWell("Drop1");
    EXPECT_EQ(plate.SubWell(), "Drop1");
}

TEST_F(CurrentWellTest, ArrowKeysAndTheirCharactersMoveWithinTheGrid) {
    Load(DropOnReservoir());
    struct {
        Integer code, row, col, newRow, newCol;
    } cases[] = {
        {38, 0, 3, 0, 3}, {38, 1, 3, 0, 3},  {40, 7, 3, 7, 3},   {40, 6, 3, 7, 3},
        {37, 2, 0, 2, 0}, {37, 2, 1, 2, 0},  {39, 2, 11, 2, 11}, {39, 2, 10, 2, 11},
        {13, 2, 2, 2, 2}, {'A', 2, 2, 2, 2},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << each.code << " at " << each.row << ", " << each.col);
        for (const Boolean typed : {false, true}) {
            plate.SetWell(each.row, each.col, "Reservoir", wsSilent);
            if (typed)
                plate.CharacterTyped(each.code);
            else
                plate.KeyDown(each.code, kCtrlKey);
            EXPECT_EQ(plate.Row(), each.newRow);
            EXPECT_EQ(plate.Col(), each.newCol);
            EXPECT_EQ(plate.CurrentWell(), 96 + each.newRow * 12 + each.newCol);
        }
    }
    EXPECT_TRUE(events.Take().empty());
    EXPECT_TRUE(SelectedWells().empty());
}

} // namespace
} // namespace zorvane
