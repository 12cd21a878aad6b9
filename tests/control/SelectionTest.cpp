#include "control/ControlFixture.h"

namespace zorvane {
namespace {

using SelectionTest = ControlTest;

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
