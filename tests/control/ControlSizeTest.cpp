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

TEST_F(ControlSizeTest, CentringNeedsAFixedSize) {
    plate.HorizontalCentred = true;
    plate.PlateClassText(OneDrop());
    EXPECT_EQ(Shown().fraPlate.box, (Rect{300, 0, 6000, 4000}));
    EXPECT_EQ(Shown().fraData.box, (Rect{1912.5F, 0, 2775, 4740}));

    plate.HorizontalCentred = false;
    plate.VerticalCentred = true;
    plate.DrawingScale(50);
    EXPECT_EQ(Shown().fraPlate.box, (Rect{0, 280, 6000, 4000}));
    EXPECT_EQ(Shown().fraData.box, (Rect{0, -90, 2775, 4740}));

    plate.FixedSize = false;
    plate.HorizontalCentred = true;
    plate.DrawingScale(50);
    EXPECT_EQ(Shown().fraPlate.box, (Rect{0, 0, 6000, 4000}));
    EXPECT_EQ(Shown().fraData.box, (Rect{0, 0, 2775, 4740}));
}

TEST_F(ControlSizeTest, OpeningAndClosingTheDetailsPanelSizesTheControl) {
    struct {
        const char* what;
        Boolean fixedSize;
        const char* size; // later lines of a definition win
        Rect open, closed;
    } cases[] = {
        {"fitted", true, "", {0, 0, 6600, 4740 + 240}, {0, 0, 6600, 4800}},
        {"panel taller than the plate", false, "", {0, 0, 6000, 4740 + 120}, {0, 0, 6000, 4120}},
        {"panel wider than the plate",
         false,
         "XOVERALL 40\r\nYOVERALL 95\r\n",
         {0, 0, 2775, 4870},
         {0, 0, 2000, 4870}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        plate.FixedSize = each.fixedSize;
        plate.DrawingScale(50);
        plate.PlateClassText(GridText(2, 2, SubWellText("A", 10, 10, 6), each.size));
        EXPECT_EQ((Rect{0, 0, site.Width(), site.Height()}), each.closed);
        plate.DataButtonPressed();
        EXPECT_TRUE(plate.DataVisible());
        EXPECT_EQ((Rect{0, 0, site.Width(), site.Height()}), each.open);
        plate.DataVisible(true);
        plate.DataButtonPressed();
        EXPECT_FALSE(plate.DataVisible());
        EXPECT_EQ((Rect{0, 0, site.Width(), site.Height()}), each.closed);
    }
}

TEST_F(ControlSizeTest, ALayoutClosesThePanelAndGivesTheHeightBack) {
    plate.PlateClassText(OneDrop());
    plate.DataVisible(true);
    plate.DrawingScale(50);
    EXPECT_FALSE(plate.DataVisible());
    EXPECT_EQ(site.Height(), 4800);
}

} // namespace
} // namespace zorvane
