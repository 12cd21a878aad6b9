#include "control/InputRouter.h"

#include "control/ControlFixture.h"

namespace zorvane {
namespace {

/// A window's input as the control hears of it.
class InputRouterTest : public ControlTest, public InputRouter::Host {
  protected:
    InputRouterTest() { Load(OneDrop()); }

    Boolean Attempt(const std::function<void()>& call) override {
        call();
        return true;
    }
    Boolean AnswerPress(Integer /*button*/, Integer shift, InputRouter::Spot /*at*/) override {
        return shift == kAltKey;
    }
    void GestureEnded() override { ++ended; }

    InputRouter router{plate, *this};
    int ended = 0;
};

TEST_F(InputRouterTest, APartKeepsTheButtonsThatWentDownOnIt) {
    router.Press(kLeftButton, 0, 500, 500);
    router.Press(kRightButton, 0, 9000, 9000);
    EXPECT_EQ(events.Take(), "MouseDown 2 0 9000 9000");
    router.Release(kRightButton, kLeftButton, 0, 9000, 9000);
    EXPECT_EQ(router.Held(), InputRouter::Part::PlateArea);
    router.Release(kLeftButton, 0, 0, 500, 500);
    EXPECT_EQ(events.Take(), "MouseUp 2 0 9000 9000, MouseUp 1 0 500 500, Click");
    router.DoubleClick(kLeftButton, 0, 500, 500);
    router.Release(kLeftButton, 0, 0, 500, 500);
    EXPECT_EQ(events.Take(), "DoubleClick, MouseUp 1 0 500 500");
    router.Press(kLeftButton, 0, 500, 500);
    router.Release(kLeftButton, 0, 0, 9000, 500); // elsewhere: no click
    EXPECT_EQ(events.Take(), "MouseUp 1 0 9000 500");
    EXPECT_EQ(ended, 4);
}

TEST_F(InputRouterTest, AMoveWithoutAButtonEndsAPressWhoseReleaseWasLost) {
    router.Press(kLeftButton, 0, 500, 500);
    router.Move(0, 0, 950, 500);
    EXPECT_EQ(events.Take(), "MouseUp 1 0 950 500");
    EXPECT_EQ(router.Held(), InputRouter::Part::None);
}

TEST_F(InputRouterTest, AnAnsweredPressIsTheHosts) {
    router.Press(kLeftButton, kAltKey, 500, 500);
    router.Move(kLeftButton, kAltKey, 950, 500);
    router.Release(kLeftButton, 0, kAltKey, 500, 500);
    EXPECT_EQ(events.Take(), "");
    EXPECT_EQ(plate.NSelected(), 0);
}

TEST_F(InputRouterTest, ThePanelLiesOverThePlateArea) {
    EXPECT_EQ(router.WellAt(500, 500), 0);
    EXPECT_EQ(router.PartAt(7000, 500), InputRouter::Part::Background);
    plate.DataVisible(true);
    EXPECT_EQ(router.WellAt(500, 500), -1);
    router.Press(kLeftButton, 0, 500, 500);
    router.Release(kLeftButton, 0, 0, 500, 500);
    EXPECT_EQ(events.Take(), "Click");
    EXPECT_EQ(plate.NSelected(), 0);
}

} // namespace
} // namespace zorvane
