#include "control/ControlFixture.h"

namespace zorvane {
namespace {

using ControlSizeTest = ControlTest;

TEST_F(ControlSizeTest, FixedSizeFitsTheScaleAndTheFrameFollowsOneLayoutLater) {
    plate.PlateClassText(OneDrop());
    EXPECT_EQ(plate.DrawingScale(), 53.125F); // (6600 - 60 - 165) / 120
    EXPECT_EQ(Shown().fraPlate.box, (Rect{0, 0, 6000, 4000}));
    EXPECT_EQ(Rim(1).left - Rim(0).left, 478);

    plate.DrawingScale(plate.DrawingScale());
    EXPECT_EQ(Shown().fraPlate.box, (Rect{0, 0, 6375, 4250}));

    site.SetSize(6600, 3000);
    plate.DrawingScale(1);
    EXPECT_EQ(plate.DrawingScale(), 34.5F); // (3000 - 240) / 80
    EXPECT_EQ(Shown().fraPlate.box, (Rect{0, 0, 120, 80}));
}

TEST_F(ControlSizeTest, OpeningAndClosingTheDetailsPanelSizesTheControl) {
    const auto sizes = [&](Boolean fixedSize, const char* lines, Single width, Single openHeight,
                           Single closedWidth, Single closedHeight) {
        const auto expectSize = [&](Boolean open, Single expectedWidth, Single height) {
            EXPECT_EQ(plate.DataVisible(), open) << lines;
            EXPECT_EQ(std::pair(site.Width(), site.Height()), std::pair(expectedWidth, height))
                << lines;
        };
        plate.FixedSize = fixedSize;
        plate.DrawingScale(50);
        plate.PlateClassText(GridText(2, 2, SubWellText("A", 10, 10, 6), lines));
        expectSize(false, closedWidth, closedHeight);
        plate.DataButtonPressed();
        expectSize(true, width, openHeight);
        plate.DataVisible(true);
        plate.DataButtonPressed();
        expectSize(false, closedWidth, closedHeight);
        plate.DataVisible(true);
        plate.DrawingScale(plate.DrawingScale()); // a layout closes the panel too
        expectSize(false, closedWidth, closedHeight);
    };
    sizes(true, "", 6600, 4702.5F + 240, 6600, 4800);
    sizes(false, "", 6000, 4702.5F + 120, 6000, 4120); // the panel is taller than the plate
    sizes(false, "XOVERALL 40\r\nYOVERALL 95\r\n", 2775, 4870, 2000, 4870); // and wider
}

} // namespace
} // namespace zorvane
