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

    void Press(int row, int col, Integer shift = 0) {
        plate.ButtonDown(kLeftButton, shift, At(col), At(row));
    }
    void DragTo(Single x, Single y) { plate.PointerMove(kLeftButton, 0, x, y); }
    void Release(Single x, Single y) { plate.ButtonUp(kLeftButton, 0, x, y); }
};

TEST_F(GesturesTest, TheRubberBandShowsBeyondOnePitchAndLeavesNoTrace) {
    const auto move = [&](Single x, Single y, Boolean shown) {
        DragTo(x, y);
        EXPECT_EQ(site.overlay.Any(), shown) << x << ", " << y;
    };
    Press(0, 0);
    move(949, 600, false);
    move(950, 560, true);
    move(1400, 900, true);
    move(930, 940, false);
    move(560, 50, true);
    move(565, 60, true);  // under two pixels
    site.overlay.Clear(); // as a repaint of the window does
    plate.Paint();
    EXPECT_TRUE(site.overlay.Any());
    Release(500, 60);
    EXPECT_FALSE(site.overlay.Any());
}

TEST_F(GesturesTest, ADragReleasedOverItsStartSelectsTheFirstSubWellThere) {
    Load(DropOnReservoir());
    plate.DragDrop = true;
    plate.SetWell(0, 0, "Reservoir");
    plate.ButtonDown(kLeftButton, 0, 600, 600);
    EXPECT_EQ(NumberRaisedBy([&] { Release(699, 600); }), 9); // beside every well
    Release(699, 600);                                        // the gesture has ended all the same
    EXPECT_EQ(events.Take(), "MouseUp 1 0 699 600");

    plate.SetWell(0, 0, "Reservoir");
    plate.ButtonDown(kLeftButton, 0, 600, 600);
    Release(610, 600);
    EXPECT_EQ(Selected(), "1: 0");
    EXPECT_EQ(events.Take(), "");

    plate.DragDrop = false;
    plate.ButtonDown(kLeftButton, 0, 600, 600);
    EXPECT_EQ(NumberRaisedBy([&] { Release(3e7F, 600); }), 6);
    Release(600, 600);
    EXPECT_EQ(events.Take(), "MouseUp 1 0 600 600");

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
