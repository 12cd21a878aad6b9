#include "control/ControlFixture.h"
#include "control/DrawingLog.h"

namespace zorvane {
namespace {

/// The centre of a row or a column of OneDrop.
Single At(int index) { return static_cast<Single>(500 + 450 * index); }

class GesturesTest : public ControlTest {
  protected:
    GesturesTest() {
        Load(OneDrop());
        plate.MultipleSelect = true;
    }
};

TEST_F(GesturesTest, TheRubberBandSurvivesARepaintOfTheWindow) {
    plate.ButtonDown(kLeftButton, 0, At(0), At(0));
    plate.PointerMove(kLeftButton, 0, 949, 600); // not yet a pitch away
    EXPECT_FALSE(site.overlay.Any());
    plate.PointerMove(kLeftButton, 0, 950, 560);
    plate.PointerMove(kLeftButton, 0, 955, 570); // under two pixels
    site.overlay.Clear();
    plate.Paint();
    EXPECT_TRUE(site.overlay.Any());
    plate.ButtonUp(kLeftButton, 0, At(0), 60);
    EXPECT_FALSE(site.overlay.Any());
}

TEST_F(GesturesTest, AReleaseThatFailsEndsTheGesture) {
    Load(DropOnReservoir());
    for (const Boolean dragging : {true, false}) {
        const Single x = dragging ? 699 : 3e7F; // next to every well, and too far to count
        plate.DragDrop = dragging;
        plate.SetWell(0, 0, "Reservoir");
        plate.ButtonDown(kLeftButton, 0, 600, 600);
        EXPECT_EQ(NumberRaisedBy([&] { plate.ButtonUp(kLeftButton, 0, x, 600); }),
                  dragging ? 9 : 6);
        plate.ButtonUp(kLeftButton, 0, 600, 600);
        EXPECT_EQ(events.Take(), "MouseUp 1 0 600 600");
    }
    Plate withoutPitch(site);
    EXPECT_EQ(NumberRaisedBy([&] { withoutPitch.ButtonUp(kLeftButton, 0, 1, 1); }), 11);
}

TEST_F(GesturesTest, TheDragOutlineFollowsTheShapesOfTheSelectedWells) {
    DrawingSite drawing;
    Plate outlined(drawing);
    outlined.FixedSize = false;
    outlined.PlateClassText(OneDrop());
    outlined.DragDrop = true;
    outlined.MultipleSelect = true;
    for (const Integer style : {Integer{0}, Integer{3}}) {
        outlined.WellIndex(1);
        outlined.Style(style);
        outlined.DrawingScale(50);
        outlined.SetWell(0, 0);
        outlined.SetWell(0, 2, "", wsAddToSelection);
        outlined.ButtonDown(kLeftButton, 0, At(0) + 100, At(0));
        drawing.drawn.Take();
        outlined.PointerMove(kLeftButton, 0, At(0) + 29, At(0)); // less than two pixels
        EXPECT_TRUE(drawing.drawn.Take().empty());
        outlined.PointerMove(kLeftButton, 0, At(0) + 30, At(0));
        const String figure = style == 0 ? "Ellipse 103 " : "Rectangle 103 ";
        // Rims of 390 units are 26 pixels wide; the first ones stand at 20 and 80 pixels.
        EXPECT_EQ(drawing.drawn.Take(), (Lines{figure + "20 20 46 46", figure + "80 20 106 46",
                                               figure + "22 20 48 46", figure + "82 20 108 46"}));
        outlined.ButtonUp(kLeftButton, 0, At(0) + 30, At(0));
    }
}

} // namespace
} // namespace zorvane
