#include "control/ControlFixture.h"

namespace zorvane {
namespace {

using SelectionTest = ControlTest;
using Numbers = std::vector<Integer>;

TEST_F(SelectionTest, SetWellMakesAWellCurrentAndSelectsIt) {
    Load(OneDrop());
    plate.SetWell(2, 3);
    EXPECT_EQ(plate.CurrentWell(), 27);
    EXPECT_EQ(plate.Location(), "Drop1, 2, 3");
    EXPECT_EQ(Shown().WellRim[27].fill, plate.DefaultSelectColor);
    plate.SetWell(0, 0);
    EXPECT_EQ(Shown().WellRim[27].fill, plate.DefaultRimColor());
    EXPECT_EQ(SelectedWells(), Numbers{0});
}

TEST_F(SelectionTest, ActionsOnTheSelection) {
    Load(OneDrop());
    struct {
        const char* what;
        Boolean multiple;
        WellSelectAction action;
        Integer col;
        Numbers selected;
    } cases[] = {
        {"single", false, wsSingle, 5, {5}},
        {"single among many", true, wsSingle, 5, {5}},
        {"single on the selected well", true, wsSingle, 0, {0}},
        {"add", true, wsAddToSelection, 5, {0, 5}},
        {"add takes a selected well away", true, wsAddToSelection, 0, {}},
        {"add where only one may be selected", false, wsAddToSelection, 5, {5}},
        {"silent", true, wsSilent, 5, {0}},
        {"silent where only one may be selected", false, wsSilent, 5, {}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        plate.SetWell(0, 0);
        plate.MultipleSelect = each.multiple;
        plate.SetWell(0, each.col, "", each.action);
        EXPECT_EQ(SelectedWells(), each.selected);
        EXPECT_EQ(plate.NSelected(), static_cast<Integer>(each.selected.size()));
        EXPECT_EQ(plate.CurrentWell(), each.col);
    }
    EXPECT_TRUE(events.Take().empty());
}

TEST_F(SelectionTest, SetWellFindsTheSubWellByTheNameAskedFor) {
    Load(DropOnReservoir());
    struct {
        const char* name;
        Integer col, well;
        Long number;
    } cases[] = {{"", 1, 1, 0},
                 {"reservoir", 1, 97, 0},
                 {"default", 1, 1, 0},
                 {"Other", 1, 193, 9},
                 {"Other", 0, 192, 91}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        const auto set = [&] { plate.SetWell(0, each.col, each.name); };
        EXPECT_EQ(NumberRaisedBy(set), each.number);
        EXPECT_EQ(plate.CurrentWell(), each.well);
    }
}

TEST_F(SelectionTest, MarksSetByTheHostAreNotCounted) {
    Load(DropOnReservoir(2, 2));
    plate.SetWell(0, 0);
    plate.SelectAll(true);
    EXPECT_EQ(SelectedWells(), (Numbers{0, 1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(plate.NSelected(), 1);
    plate.SelectAll(false);
    plate.WellSelected(true);
    EXPECT_EQ(SelectedWells(), Numbers{0});
    EXPECT_EQ(plate.NSelected(), 1);
    EXPECT_EQ(NumberRaisedBy([&] { plate.SelectWell(-1, true); }), 9);
    EXPECT_EQ(NumberRaisedBy([&] { plate.SelectWell(8, true); }), 91);
    EXPECT_TRUE(events.Take().empty());
}

TEST_F(SelectionTest, HitTestOfOneSubWellIsTheNearestGridPoint) {
    EXPECT_EQ(plate.MouseToWell(0, 0), -1); // nothing is loaded
    Load(OneDrop());
    struct {
        Single x, y;
        Integer well;
    } cases[] = {
        {500, 500, 0},  {724, 500, 0},    {725, 500, 0},    {726, 500, 1},    {1175, 500, 2},
        {1174, 500, 1}, {500, 1175, 24},  {500, 725, 0},    {275, 275, 0},    {274, 500, -1},
        {500, 274, -1}, {5674, 3650, 95}, {5675, 3650, -1}, {5450, 3874, 95}, {5450, 3875, -1},
    };
    for (const auto& each : cases)
        EXPECT_EQ(plate.MouseToWell(each.x, each.y), each.well) << each.x << ", " << each.y;
    EXPECT_EQ(NumberRaisedBy([&] { plate.MouseToWell(2e7F, 0); }), 6);
}

TEST_F(SelectionTest, HitTestOfSeveralSubWellsIsTheFirstRimThatHoldsThePoint) {
    Load(DropOnReservoir());
    struct {
        Single x, y;
        Integer well;
    } cases[] = {
        {400, 400, 0},  {325, 325, 0},  {474, 474, 0},  {475, 400, 96},
        {324, 400, 96}, {305, 500, 96}, {304, 500, -1}, {694, 694, 96},
        {695, 500, -1}, {500, 695, -1}, {850, 400, 1},  {1000, 950, 109},
    };
    for (const auto& each : cases)
        EXPECT_EQ(plate.MouseToWell(each.x, each.y), each.well) << each.x << ", " << each.y;
}

TEST_F(SelectionTest, AfterAFailedLoadNoWellIsHit) {
    Load(OneDrop());
    process.messages.onUnexpected = nullptr;
    EXPECT_FALSE(plate.SetPlate("Demo", "no such library"));
    EXPECT_EQ(process.messages.shown.size(), 1U);
    EXPECT_EQ(plate.MouseToWell(500, 500), -1);
    EXPECT_EQ(plate.TotalWells(), 96);
}

TEST_F(SelectionTest, MarkingTheControlColoursItsAreaAndLegends) {
    Load(OneDrop());
    plate.SelectedColor = 0x123456;
    plate.DeselectedColor = 0x654321;
    for (const Boolean selected : {true, false}) {
        plate.Selected(selected);
        EXPECT_EQ(Shown().fraPlate.back, selected ? 0x123456 : 0x654321);
        EXPECT_EQ(Shown().fraPlate.text, SystemColor(selected ? 0x12 : 0x11));
        EXPECT_EQ(Shown().cmdData.bold, selected);
        for (const Label& legend : Shown().lblWell)
            EXPECT_EQ(legend.color, Shown().fraPlate.text);
    }
    EXPECT_EQ(site.dataButtonFocusRequests, 1);
    plate.MouseEnabled(false);
    plate.Selected(true);
    EXPECT_EQ(site.dataButtonFocusRequests, 1);
    EXPECT_TRUE(SelectedWells().empty());
}

} // namespace
} // namespace zorvane
