#include "control/ControlFixture.h"

namespace zorvane {
namespace {

using SelectionTest = ControlTest;

TEST_F(SelectionTest, ActionsOnTheSelection) {
    Load(OneDrop());
    const auto set = [&](const char* what, Boolean multiple, WellSelectAction action, Integer col,
                         const char* selected) {
        SCOPED_TRACE(what);
        plate.SetWell(0, 0);
        plate.MultipleSelect = multiple;
        plate.SetWell(2, col, "", action);
        EXPECT_EQ(Selected(), selected);
        EXPECT_EQ(plate.CurrentWell(), 24 + col);
        EXPECT_EQ(plate.Location(), "Drop1, 2, " + std::to_string(col));
        for (Integer i = 0; i < 96; ++i) {
            EXPECT_EQ(Shown().WellRim[static_cast<std::size_t>(i)].fill,
                      plate.IsSelected(i) ? plate.DefaultSelectColor : plate.DefaultRimColor());
        }
    };
    set("single", false, wsSingle, 5, "1: 29");
    set("single among many", true, wsSingle, 5, "1: 29");
    set("add", true, wsAddToSelection, 5, "2: 0 29");
    set("add where only one may be selected", false, wsAddToSelection, 5, "1: 29");
    set("silent", true, wsSilent, 5, "1: 0");
    set("silent where only one may be selected", false, wsSilent, 5, "0:");

    plate.MultipleSelect = true;
    plate.SetWell(0, 0);
    plate.SetWell(0, 0); // a single selection of the selected well keeps it
    EXPECT_EQ(Selected(), "1: 0");
    plate.SetWell(0, 0, "", wsAddToSelection);
    EXPECT_EQ(Selected(), "0:");
    EXPECT_EQ(events.Take(), "");
}

TEST_F(SelectionTest, SetWellFindsTheSubWellByTheNameAskedFor) {
    Load(DropOnReservoir());
    const auto finds = [&](const char* name, Integer col, Integer well, Long number) {
        EXPECT_EQ(NumberRaisedBy([&] { plate.SetWell(0, col, name); }), number) << name;
        EXPECT_EQ(plate.CurrentWell(), well) << name;
    };
    finds("", 1, 1, 0);
    finds("reservoir", 1, 97, 0);
    finds("default", 1, 1, 0);
    finds("Other", 1, 193, 9);
    finds("Other", 0, 192, 91);
}

TEST_F(SelectionTest, MarksSetByTheHostAreNotCounted) {
    Load(DropOnReservoir(2, 2));
    plate.SetWell(0, 0);
    plate.SelectAll(true);
    EXPECT_EQ(Selected(), "1: 0 1 2 3 4 5 6 7");
    plate.SelectAll(false);
    plate.WellSelected(true);
    EXPECT_EQ(Selected(), "1: 0");
    EXPECT_EQ(NumberRaisedBy([&] { plate.SelectWell(-1, true); }), 9);
    EXPECT_EQ(NumberRaisedBy([&] { plate.SelectWell(8, true); }), 91);
    EXPECT_EQ(events.Take(), "");
}

TEST_F(SelectionTest, TheWellUnderAPoint) {
    struct Hit {
        Single x, y;
        Integer well;
    };
    const auto hits = [&](const std::vector<Hit>& cases) {
        for (const Hit& each : cases)
            EXPECT_EQ(plate.MouseToWell(each.x, each.y), each.well) << each.x << ", " << each.y;
    };
    hits({{0, 0, -1}}); // nothing is loaded
    Load(OneDrop());    // the nearest grid point
    hits({{500, 500, 0},
          {724, 500, 0},
          {725, 500, 0},
          {726, 500, 1},
          {1175, 500, 2},
          {1174, 500, 1},
          {500, 1175, 24},
          {500, 725, 0},
          {275, 275, 0},
          {274, 500, -1},
          {500, 274, -1},
          {5674, 3650, 95},
          {5675, 3650, -1},
          {5450, 3874, 95},
          {5450, 3875, -1}});
    EXPECT_EQ(NumberRaisedBy([&] { plate.MouseToWell(2e7F, 0); }), 6);
    Load(DropOnReservoir()); // the first rim that holds the point
    hits({{400, 400, 0},
          {325, 325, 0},
          {474, 474, 0},
          {475, 400, 96},
          {324, 400, 96},
          {305, 500, 96},
          {304, 500, -1},
          {694, 694, 96},
          {695, 500, -1},
          {500, 695, -1},
          {850, 400, 1},
          {1000, 950, 109}});
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
    EXPECT_EQ(Selected(), "0:");
}

} // namespace
} // namespace zorvane
