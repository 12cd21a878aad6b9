#include "AllocationCounter.h"
#include "control/ControlFixture.h"
#include "control/DrawingLog.h"

namespace zorvane {
namespace {

String ThreeDrops(int rows, int cols) {
    return GridText(rows, cols,
                    SubWellText("Drop1", 10, 10, 1) + SubWellText("Drop2", 11, 10, 1) +
                        SubWellText("Reservoir", 10, 11, 1),
                    "ROWLABEL 1\r\nXPITCH 2\r\nYPITCH 2\r\n");
}

class AllocationTest : public testing::Test {
  protected:
    TestProcess process;
    DrawingSite site;
    Plate plate{site};
};

TEST_F(AllocationTest, ALayoutOfTheSamePlateAllocatesNothing) {
    String longName = ThreeDrops(32, 48);
    longName.replace(longName.find("Demo"), 4, "A plate whose name needs memory of its own");
    const String texts[] = {OneDrop(), ThreeDrops(16, 24), longName, GridText(8, 12, "")};
    for (const String& text : texts) {
        for (const Boolean fixedSize : {true, false}) {
            plate.FixedSize = fixedSize;
            plate.PlateClassText(text);
            plate.WellIndex(1);
            if (plate.SubWellCount > 0) plate.InitialVolume(2.5F);
            const AllocationCounter counter;
            plate.DrawingScale(plate.DrawingScale());
            if (plate.SubWellCount > 0) plate.InitialVolume(2.5F); // with a full reset
            EXPECT_EQ(counter.Count(), 0U) << plate.PlateName() << ", " << plate.TotalWells();
        }
    }
}

TEST_F(AllocationTest, ShowingAWellAllocatesNothing) {
    plate.PlateClassText(ThreeDrops(16, 24));
    plate.MultipleSelect = true;
    plate.SetWell(0, 0);
    const AllocationCounter counter;
    plate.SetWell(5, 5, "Drop2", wsAddToSelection);
    plate.WellColor("255");
    plate.IsDefined(7, true);
    plate.WellAnnotation(7, "short");
    plate.MouseToWell(500, 500);
    EXPECT_EQ(counter.Count(), 0U);
}

} // namespace
} // namespace zorvane
