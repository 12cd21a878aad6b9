#include "control/ControlFixture.h"

#include <tuple>

namespace zorvane {
namespace {

using CurrentWellTest = ControlTest;

TEST_F(CurrentWellTest, WithoutAGridEverythingButTheNumberIsZero) {
    plate.CurrentWell(5);
    EXPECT_EQ(plate.CurrentWell(), 5);
    EXPECT_EQ(plate.Col(), 0);
    EXPECT_EQ(plate.WellIndex(), 0);
    EXPECT_EQ(plate.Location(), "Default, 0, 0");
    EXPECT_EQ(NumberRaisedBy([&] { plate.WellIndex(0); }), 91); // no plate, no last sub-well
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

} // namespace
} // namespace zorvane
