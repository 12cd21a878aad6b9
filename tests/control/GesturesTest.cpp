#include "control/ControlFixture.h"
#include "control/DrawingLog.h"

namespace zorvane {
namespace {

using Lines = std::vector<String>;
using Numbers = std::vector<Integer>;

class GesturesTest : public ControlTest {
  protected:
    GesturesTest() {
        Load(OneDrop());
        plate.MultipleSelect = true;
    }

    /// The centre of a well of OneDrop.
    static Single X(int col) { return static_cast<Single>(500 + 450 * col); }
    static Single Y(int row) { return static_cast<Single>(500 + 450 * row); }

    void Press(int row, int col, Integer shift = 0) {
        plate.ButtonDown(kLeftButton, shift, X(col), Y(row));
    }
    void DragTo(Single x, Single y) { plate.PointerMove(kLeftButton, 0, x, y); }
    void Release(Single x, Single y) { plate.ButtonUp(kLeftButton, 0, x, y); }

    void ExpectBlock(Integer x, Integer y, Integer width, Integer height) const {
        EXPECT_EQ(plate.ArrayX(), x);
        EXPECT_EQ(plate.ArrayY(), y);
        EXPECT_EQ(plate.ArrayWidth(), width);
        EXPECT_EQ(plate.ArrayHeight(), height);
    }
};

TEST_F(GesturesTest, AClickOnAWellEndsAsASelectionOnlyWhereManyMayBeSelected) {
    Press(2, 3);
    EXPECT_TRUE(events.Take().empty());
    EXPECT_EQ(SelectedWells(), Numbers{27});
    EXPECT_EQ(site.focusRequests, 1);
    Release(X(3) + 100, Y(2));
    EXPECT_EQ(events.Take(), Lines{"SelectWell 27"});
    ExpectBlock(3, 2, 1, 1);

    plate.MultipleSelect = false;
    Press(4, 5, kShiftKey);
    EXPECT_EQ(SelectedWells(), Numbers{53});
    Release(X(5), Y(4));
    EXPECT_EQ(events.Take(), Lines{"MouseUp 1 0 2750 2300"});
}

TEST_F(GesturesTest, OtherPressesAreHandedToTheHost) {
    plate.ButtonDown(kRightButton, kAltKey, X(0), Y(0));
    plate.ButtonUp(kRightButton, kAltKey, X(0), Y(0));
    plate.ButtonDown(kLeftButton, 0, 100, 100);
    plate.ButtonUp(kLeftButton, 0, 100, 100);
    EXPECT_EQ(events.Take(), (Lines{"MouseDown 2 4 500 500", "MouseUp 2 4 500 500",
                                    "MouseDown 1 0 100 100", "MouseUp 1 0 100 100"}));
    EXPECT_EQ(site.focusRequests, 2);
    EXPECT_TRUE(SelectedWells().empty());
}

TEST_F(GesturesTest, ADisabledMouseStartsNothing) {
    plate.MouseEnabled(false);
    Press(0, 0);
    Release(X(0), Y(0));
    EXPECT_TRUE(events.Take().empty());
    EXPECT_EQ(site.focusRequests, 0);
    EXPECT_TRUE(SelectedWells().empty());

    plate.MouseEnabled(true);
    Press(0, 0);
    plate.MouseEnabled(false); // a gesture already begun goes on
    DragTo(X(1), Y(1));
    Release(X(1), Y(1));
    EXPECT_EQ(events.Take(), Lines{"SelectMultipleWells"});
}

TEST_F(GesturesTest, CtrlAddsToTheSelection) {
    Press(0, 0);
    Release(X(0), Y(0));
    Press(0, 2, kCtrlKey);
    Release(X(2), Y(0));
    EXPECT_EQ(SelectedWells(), (Numbers{0, 2}));
    Press(0, 0, kCtrlKey | kShiftKey);
    EXPECT_EQ(SelectedWells(), Numbers{2});
    EXPECT_EQ(plate.NSelected(), 1);
    // The area then selects the well that the press took away, and counts it again.
    Release(X(2), Y(0));
    EXPECT_EQ(SelectedWells(), (Numbers{0, 1, 2}));
    EXPECT_EQ(plate.NSelected(), 3);
}

TEST_F(GesturesTest, AnAreaSelectsItsBlockRowByRow) {
    Press(1, 2);
    DragTo(X(1), Y(0));
    EXPECT_TRUE(events.Take().empty());
    Release(X(0), Y(0));
    EXPECT_EQ(events.Take(), Lines{"SelectMultipleWells"});
    EXPECT_EQ(SelectedWells(), (Numbers{0, 1, 2, 12, 13, 14}));
    EXPECT_EQ(plate.NSelected(), 6);
    EXPECT_EQ(plate.CurrentWell(), 14);
    ExpectBlock(0, 0, 3, 2);
    EXPECT_EQ(Shown().WellRim[12].fill, plate.DefaultSelectColor);
    EXPECT_FALSE(Shown().SelectBox.visible);
}

TEST_F(GesturesTest, AnAreaIsCutAtTheEdgeOfTheGrid) {
    struct {
        int row, col;
        Single x, y;
        Integer left, top, width, height;
        const char* event;
    } cases[] = {
        {0, 10, 9000, -3000, 10, 0, 2, 1, "SelectMultipleWells"},
        {6, 1, -9000, 9000, 0, 6, 2, 2, "SelectMultipleWells"},
        {0, 11, 9000, -3000, 11, 0, 1, 1, "SelectWell 11"},
        {4, 4, 2300 + 225, 2300 - 225, 4, 4, 1, 1, "SelectWell 52"}, // half a pitch is none
        {4, 4, 2300 + 226, 2300 - 675, 4, 2, 2, 3, "SelectMultipleWells"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << each.row << ", " << each.col);
        Press(each.row, each.col);
        Release(each.x, each.y);
        ExpectBlock(each.left, each.top, each.width, each.height);
        EXPECT_EQ(events.Take(), Lines{each.event});
        EXPECT_EQ(plate.NSelected(), each.width * each.height);
    }
}

TEST_F(GesturesTest, AnAreaStaysInTheSubWellPressed) {
    Load(DropOnReservoir());
    plate.ButtonDown(kLeftButton, 0, 600, 600); // the reservoir beside the drop
    Release(600 + 450, 600);
    EXPECT_EQ(SelectedWells(), (Numbers{96, 97}));
}

TEST_F(GesturesTest, TheRubberBandShowsBeyondOnePitchAndLeavesNoTrace) {
    Press(0, 0);
    struct {
        Single x, y;
        Boolean shown;
    } moves[] = {{949, 600, false}, {950, 560, true}, {1400, 900, true},
                 {930, 940, false}, {560, 50, true},  {565, 60, true} /* under two pixels */};
    for (const auto& each : moves) {
        DragTo(each.x, each.y);
        EXPECT_EQ(site.overlay.Any(), each.shown) << each.x << ", " << each.y;
    }
    Release(500, 60);
    EXPECT_FALSE(site.overlay.Any());
}

TEST_F(GesturesTest, PaintingPutsTheRubberBandBack) {
    Press(0, 0);
    DragTo(1400, 1400);
    site.overlay.Clear(); // as a repaint of the window does
    plate.Paint();
    EXPECT_TRUE(site.overlay.Any());
    Release(1400, 1400);
    EXPECT_FALSE(site.overlay.Any());
}

TEST_F(GesturesTest, AnEnabledSelectBoxFramesTheAreaUntilTheNextPress) {
    plate.SelectBoxEnabled(true);
    Press(0, 0);
    Release(X(2), Y(1));
    EXPECT_EQ(events.Take(), Lines{"SelectMultipleWells"});
    EXPECT_TRUE(Shown().SelectBox.visible);
    EXPECT_EQ(Shown().SelectBox.box, (Rect{305, 305, 2 * 450 + 390, 450 + 390}));
    EXPECT_EQ(plate.CurrentWell(), 14);

    Press(5, 5);
    EXPECT_FALSE(Shown().SelectBox.visible);
    Release(X(6), Y(5));
    site.repaints.clear();
    plate.SelectBoxEnabled(false);
    EXPECT_FALSE(Shown().SelectBox.visible);
    EXPECT_EQ(site.repaints, std::vector<Rect>{Shown().SelectBox.box});
}

TEST_F(GesturesTest, ADragMovesTheSelectBoxAndTellsTheHost) {
    plate.SelectBoxEnabled(true);
    plate.DragDrop = true;
    Press(0, 0);
    Release(X(2), Y(1));
    events.Take();

    Press(1, 2, kShiftKey);
    EXPECT_TRUE(site.overlay.Any());
    DragTo(X(3), Y(1) + 100);
    EXPECT_TRUE(site.overlay.Any());
    plate.ButtonUp(kLeftButton, kShiftKey, X(3), Y(1) + 100);
    EXPECT_EQ(events.Take(), Lines{"DragMove 1 1 1 0"});
    EXPECT_FALSE(site.overlay.Any());
    EXPECT_EQ(Shown().SelectBox.box.left, 305 + 450);
    EXPECT_EQ(Shown().SelectBox.box.top, 305);
    EXPECT_EQ(SelectedWells(), (Numbers{0, 1, 2, 12, 13, 14})); // the data stay the host's

    Release(X(3), Y(1)); // the gesture is over
    EXPECT_EQ(events.Take(), Lines{"MouseUp 1 0 1850 950"});
}

TEST_F(GesturesTest, ADragReleasedOverItsStartSelectsTheFirstSubWellThere) {
    Load(DropOnReservoir());
    plate.DragDrop = true;
    plate.SetWell(0, 0, "Reservoir");
    plate.ButtonDown(kLeftButton, 0, 600, 600);
    Release(610, 600);
    EXPECT_EQ(SelectedWells(), Numbers{0});
    EXPECT_TRUE(events.Take().empty());
}

TEST_F(GesturesTest, AFailingReleaseEndsTheGestureAllTheSame) {
    Load(DropOnReservoir());
    plate.DragDrop = true;
    plate.SetWell(0, 0, "Reservoir");
    plate.ButtonDown(kLeftButton, 0, 600, 600);
    EXPECT_EQ(NumberRaisedBy([&] { Release(699, 600); }), 9); // beside every well
    Release(699, 600);
    EXPECT_EQ(events.Take(), Lines{"MouseUp 1 0 699 600"});

    plate.DragDrop = false;
    plate.ButtonDown(kLeftButton, 0, 600, 600);
    EXPECT_EQ(NumberRaisedBy([&] { Release(3e7F, 600); }), 6);
    Release(600, 600);
    EXPECT_EQ(events.Take(), Lines{"MouseUp 1 0 600 600"});
}

TEST_F(GesturesTest, AReleaseWithoutAPitchIsADivisionByZero) {
    Plate empty(site);
    EXPECT_EQ(NumberRaisedBy([&] { empty.ButtonUp(kLeftButton, 0, 1, 1); }), 11);
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
        outlined.ButtonDown(kLeftButton, 0, X(0) + 100, Y(0));
        drawing.drawn.Take();
        outlined.PointerMove(kLeftButton, 0, X(0) + 29, Y(0)); // less than two pixels
        EXPECT_TRUE(drawing.drawn.Take().empty());
        outlined.PointerMove(kLeftButton, 0, X(0) + 30, Y(0));
        const String figure = style == 0 ? "Ellipse 103 " : "Rectangle 103 ";
        // Rims of 390 units are 26 pixels wide; the first ones stand at 20 and 80 pixels.
        EXPECT_EQ(drawing.drawn.Take(), (Lines{figure + "20 20 46 46", figure + "80 20 106 46",
                                               figure + "22 20 48 46", figure + "82 20 108 46"}));
        outlined.ButtonUp(kLeftButton, 0, X(0) + 30, Y(0));
    }
}

TEST_F(GesturesTest, HoveringShowsTheTextAndWhetherAWellCanBeMoved) {
    plate.Text(0, "lysozyme");
    plate.SetWell(0, 0);
    plate.MouseEnabled(false); // makes no difference
    plate.PointerMove(0, 0, X(0), Y(0));
    EXPECT_TRUE(site.pointers.empty());
    plate.DragDrop = true;
    plate.PointerMove(kRightButton, 0, X(0), Y(0));
    plate.PointerMove(0, 0, X(1), Y(0));
    plate.PointerMove(0, 0, X(0), Y(0));
    plate.PointerMove(0, 0, 0, 0);
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
    Release(X(5), Y(2));
    plate.KeyDown(17, kCtrlKey);
    EXPECT_EQ(site.pointers.size(), 2U);
}

} // namespace
} // namespace zorvane
