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

    /// Selects the first two rows of the first three columns.
    void SelectSix() {
        Press(0, 0);
        Release(At(2), At(1));
        EXPECT_EQ(events.Take(), "SelectMultipleWells");
        EXPECT_EQ(Selected(), "6: 0 1 2 12 13 14");
        EXPECT_EQ(plate.CurrentWell(), 14);
    }

    String Block() const {
        std::ostringstream text;
        text << plate.ArrayX() << " " << plate.ArrayY() << " " << plate.ArrayWidth() << " "
             << plate.ArrayHeight();
        return text.str();
    }
};

TEST_F(GesturesTest, AClickOnAWellEndsAsASelectionOnlyWhereManyMayBeSelected) {
    Press(2, 3);
    EXPECT_EQ(events.Take(), "");
    EXPECT_EQ(Selected(), "1: 27");
    EXPECT_EQ(site.focusRequests, 1);
    Release(At(3) + 100, At(2));
    EXPECT_EQ(events.Take(), "SelectWell 27");

    plate.MultipleSelect = false;
    Press(4, 5, kShiftKey);
    EXPECT_EQ(Selected(), "1: 53");
    Release(At(5), At(4));
    EXPECT_EQ(events.Take(), "MouseUp 1 0 2750 2300");
}

TEST_F(GesturesTest, OtherPressesAreHandedToTheHost) {
    plate.ButtonDown(kRightButton, kAltKey, At(0), At(0));
    plate.ButtonUp(kRightButton, kAltKey, At(0), At(0));
    plate.ButtonDown(kLeftButton, 0, 100, 100);
    Release(100, 100);
    EXPECT_EQ(events.Take(), "MouseDown 2 4 500 500, MouseUp 2 4 500 500, "
                             "MouseDown 1 0 100 100, MouseUp 1 0 100 100");
    EXPECT_EQ(site.focusRequests, 2);
    EXPECT_EQ(Selected(), "0:");
}

TEST_F(GesturesTest, ADisabledMouseStartsNothingButEndsWhatHadBegun) {
    plate.MouseEnabled(false);
    Press(0, 0);
    Release(At(0), At(0));
    EXPECT_EQ(events.Take(), "");
    EXPECT_EQ(site.focusRequests, 0);
    EXPECT_EQ(Selected(), "0:");

    plate.MouseEnabled(true);
    Press(0, 0);
    plate.MouseEnabled(false);
    Release(At(1), At(1));
    EXPECT_EQ(events.Take(), "SelectMultipleWells");
}

TEST_F(GesturesTest, CtrlAddsToTheSelection) {
    Press(0, 0);
    Release(At(0), At(0));
    Press(0, 2, kCtrlKey);
    Release(At(2), At(0));
    EXPECT_EQ(Selected(), "2: 0 2");
    Press(0, 0, kCtrlKey | kShiftKey);
    EXPECT_EQ(Selected(), "1: 2");
    // The area then selects the well that the press took away, and counts it again.
    Release(At(2), At(0));
    EXPECT_EQ(Selected(), "3: 0 1 2");
}

TEST_F(GesturesTest, AnAreaIsCutAtTheEdgeOfTheGrid) {
    const auto area = [&](int row, int col, Single x, Single y, const char* block, Integer count,
                          const char* event) {
        SCOPED_TRACE(block);
        Press(row, col);
        Release(x, y);
        EXPECT_EQ(Block(), block);
        EXPECT_EQ(events.Take(), event);
        EXPECT_EQ(plate.NSelected(), count);
        EXPECT_FALSE(Shown().SelectBox.visible);
    };
    area(1, 2, At(0), At(0), "0 0 3 2", 6, "SelectMultipleWells");
    EXPECT_EQ(Selected(), "6: 0 1 2 12 13 14");
    EXPECT_EQ(plate.CurrentWell(), 14);
    EXPECT_EQ(Shown().WellRim[12].fill, plate.DefaultSelectColor);
    area(0, 10, 9000, -3000, "10 0 2 1", 2, "SelectMultipleWells");
    area(6, 1, -9000, 9000, "0 6 2 2", 4, "SelectMultipleWells");
    area(0, 11, 9000, -3000, "11 0 1 1", 1, "SelectWell 11");
    area(4, 4, At(4) + 225, At(4) - 225, "4 4 1 1", 1, "SelectWell 52"); // half a pitch is none
    area(4, 4, At(4) + 226, At(4) - 675, "4 2 2 3", 6, "SelectMultipleWells");

    Load(DropOnReservoir());
    plate.ButtonDown(kLeftButton, 0, 600, 600); // the reservoir beside the drop
    Release(600 + 450, 600);
    EXPECT_EQ(Selected(), "2: 96 97");
}

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

TEST_F(GesturesTest, AnEnabledSelectBoxFramesTheAreaUntilTheNextPress) {
    plate.SelectBoxEnabled(true);
    SelectSix();
    EXPECT_TRUE(Shown().SelectBox.visible);
    EXPECT_EQ(Shown().SelectBox.box, (Rect{305, 305, 2 * 450 + 390, 450 + 390}));

    Press(5, 5);
    EXPECT_FALSE(Shown().SelectBox.visible);
    Release(At(6), At(5));
    site.repaints.clear();
    plate.SelectBoxEnabled(false);
    EXPECT_FALSE(Shown().SelectBox.visible);
    EXPECT_EQ(site.repaints, std::vector<Rect>{Shown().SelectBox.box});
}

TEST_F(GesturesTest, ADragMovesTheSelectBoxAndTellsTheHost) {
    plate.SelectBoxEnabled(true);
    plate.DragDrop = true;
    SelectSix();

    Press(1, 2, kShiftKey);
    EXPECT_TRUE(site.overlay.Any());
    DragTo(At(3), At(1) + 100);
    EXPECT_TRUE(site.overlay.Any());
    plate.ButtonUp(kLeftButton, kShiftKey, At(3), At(1) + 100);
    EXPECT_EQ(events.Take(), "DragMove 1 1 1 0");
    EXPECT_FALSE(site.overlay.Any());
    EXPECT_EQ(Shown().SelectBox.box, (Rect{305 + 450, 305, 2 * 450 + 390, 450 + 390}));
    EXPECT_EQ(Selected(), "6: 0 1 2 12 13 14"); // the data stay the host's

    Release(At(3), At(1)); // the gesture is over
    EXPECT_EQ(events.Take(), "MouseUp 1 0 1850 950");

    plate.SelectBoxEnabled(false);
    Press(0, 0);
    site.repaints.clear();
    Release(At(1), At(0));
    EXPECT_EQ(events.Take(), "DragMove 1 0 1 0");
    EXPECT_TRUE(site.repaints.empty()); // a hidden box has nothing to paint
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

TEST_F(GesturesTest, HoveringShowsTheTextAndWhetherAWellCanBeMoved) {
    plate.Text(0, "lysozyme");
    plate.SetWell(0, 0);
    plate.MouseEnabled(false); // makes no difference
    plate.PointerMove(0, 0, At(0), At(0));
    EXPECT_TRUE(site.pointers.empty());
    plate.DragDrop = true;
    plate.PointerMove(kRightButton, 0, At(0), At(0));
    for (const Single x : {At(1), At(0), Single{0}})
        plate.PointerMove(0, 0, x, At(0));
    using enum PointerShape;
    EXPECT_EQ(site.pointers, (std::vector{MoveArrows, Standard, MoveArrows, Standard}));
    EXPECT_EQ(site.toolTips, (Lines{"lysozyme", "", "lysozyme", ""}));
}

TEST_F(GesturesTest, CtrlChangesThePointerOfADragAndArrowsWait) {
    plate.DragDrop = true;
    plate.SetWell(2, 2);
    Press(2, 2);
    plate.KeyDown(38, 0);
    EXPECT_EQ(plate.Row(), 2);
    plate.KeyDown(17, kCtrlKey);
    plate.KeyUp(16, kCtrlKey);
    plate.KeyUp(17, 0);
    using enum PointerShape;
    EXPECT_EQ(site.pointers, (std::vector{Custom, MoveArrows}));
    plate.CharacterTyped('&'); // the character does not wait
    EXPECT_EQ(plate.Row(), 1);
    Release(At(5), At(2));
    plate.KeyDown(17, kCtrlKey);
    EXPECT_EQ(site.pointers.size(), 2U);
}

} // namespace
} // namespace zorvane
