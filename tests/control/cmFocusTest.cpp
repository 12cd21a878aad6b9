#include "control/cmFocus.h"

#include "Test.h"
#include "control/DrawingLog.h"
#include "platform/memory/MemorySite.h"

#include <optional>

namespace zorvane {
namespace {

class cmFocusTest : public testing::Test {
  protected:
    /// On window 3, at 15 units a pixel, with a rectangle from pixel (2, 3) to (20, 30).
    void Begin() {
        focus->hwnd(3);
        focus->Enabled(true);
        focus->DragStart(30, 45);
        focus->DragPosition(300, 450);
        site.drawn.Take();
    }

    TestProcess process;
    DrawingSite site;
    std::optional<cmFocus> focus{std::in_place, site};
};

TEST_F(cmFocusTest, SetsTheContextUpOnceAndGivesEverythingBack) {
    focus->hwnd(3);
    EXPECT_EQ(site.drawn.Take(), Lines{"CreatePen 2 1 0"});
    focus->hwnd(3);
    focus->Enabled(true);
    focus->Enabled(true);
    EXPECT_EQ(site.drawn.Take(), (Lines{"GetDC 3", "GetCurrentObject 103 1", "SelectObject 103 50",
                                        "SetROP2 103 10"}));
    focus->RectangleVisible(true);
    site.drawn.Take();
    focus->Enabled(false); // does not erase the rectangle
    focus->Enabled(false);
    focus->hwnd(0);
    focus->hwnd(0);
    EXPECT_EQ(site.drawn.Take(), (Lines{"ReleaseDC 3 103", "DeleteObject 50"}));
    focus->hwnd(4);
    focus->Enabled(true);
    site.drawn.Take();
    focus.reset();
    EXPECT_EQ(site.drawn.Take(), (Lines{"DeleteObject 51", "ReleaseDC 4 104"}));
}

TEST_F(cmFocusTest, TracksOneVisibleRectangle) {
    Begin();
    focus->RectangleVisible(true);
    focus->RectangleVisible(true);
    EXPECT_EQ(site.drawn.Take(), Lines{"Rectangle 103 2 3 20 30"});
    focus->DragPosition(600, 900);
    EXPECT_EQ(site.drawn.Take(), (Lines{"Rectangle 103 2 3 20 30", "Rectangle 103 2 3 40 60"}));
    focus->DragStart(0, 15);
    EXPECT_EQ(site.drawn.Take(), (Lines{"Rectangle 103 2 3 40 60", "Rectangle 103 0 1 40 60"}));
    focus->Refresh();
    EXPECT_EQ(site.drawn.Take(), Lines{"Rectangle 103 0 1 40 60"});
    focus->RectangleVisible(false);
    focus->RectangleVisible(false);
    EXPECT_EQ(site.drawn.Take(), Lines{"Rectangle 103 0 1 40 60"});
}

TEST(cmFocusOnAnOverlay, DrawingTwiceLeavesNoTrace) {
    TestProcess process;
    MemorySite site;
    cmFocus focus(site);
    focus.hwnd(site.PlateWindow());
    focus.Enabled(true);
    focus.DragStart(300, 300);
    focus.RectangleVisible(true);
    // Places between pixels, where a centred plate area puts the pointer.
    for (int step = 0; step < 13; ++step) {
        const Single at = 7.5F + 315 * static_cast<Single>(step);
        focus.DragPosition(at, 3000 - at);
        EXPECT_TRUE(site.overlay.Any());
        focus.DragStart(at / 2, at);
    }
    focus.RectangleVisible(false);
    EXPECT_FALSE(site.overlay.Any());

    for (int i = 0; i < 2; ++i) {
        focus.DrawEllipse(100, 100, 1000, 700);
        focus.DrawRectangle(400, 300, 7000, 500);
        EXPECT_EQ(site.overlay.Any(), i == 0);
    }
}

} // namespace
} // namespace zorvane
