#include "control/cmFocus.h"

#include "Raised.h"
#include "TestProcess.h"
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

TEST_F(cmFocusTest, OnlyRemembersCornersWhileNothingIsVisible) {
    Begin();
    focus->DragStart(150, 150);
    focus->DragPosition(151, 1.4F);
    focus->Refresh();
    EXPECT_TRUE(site.drawn.Take().empty());
    focus->RectangleVisible(true);
    EXPECT_EQ(site.drawn.Take(), Lines{"Rectangle 103 10 10 10 0"});

    focus->Enabled(false);
    site.drawn.Take();
    focus->DragPosition(300, 300);
    focus->Refresh();
    focus->RectangleVisible(false);
    EXPECT_TRUE(site.drawn.Take().empty());
}

TEST_F(cmFocusTest, HalfPixelsGoToTheEvenOne) {
    process.screen.twipsPerPixelX = 12;
    process.screen.twipsPerPixelY = 10;
    Begin();
    focus->DrawRectangle(22.5F * 12, 22.5F * 10, 23.5F * 12, 23.5F * 10);
    focus->DrawEllipse(-6, -5, 18, 15);
    EXPECT_EQ(site.drawn.Take(), (Lines{"Rectangle 103 22 22 24 24", "Ellipse 103 0 0 2 2"}));
}

TEST_F(cmFocusTest, DrawsFiguresWhetherOrNotItIsEnabled) {
    EXPECT_EQ(NumberRaisedBy([&] { focus->DrawEllipse(0, 0, 15, 15); }), 11); // no scale yet
    Begin();
    focus->Enabled(false);
    site.drawn.Take();
    focus->DrawRectangle(0, 0, 15, 15);
    EXPECT_EQ(site.drawn.Take(), Lines{"Rectangle 0 0 0 1 1"});
    EXPECT_EQ(NumberRaisedBy([&] { focus->DrawRectangle(1e20F, 0, 1, 1); }), 6);
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
    for (Single at = 7.5F; at < 4000; at += 315) {
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
