#include "control/PlateEvents.h"

#include "control/ControlFixture.h"

#include <functional>

namespace zorvane {
namespace {

/// Writes its name down, then does something to the observers.
struct Actor : PlateObserver {
    Actor(String itsName, String& itsLog) : name(std::move(itsName)), log(itsLog) {}
    void Click() override {
        log += name;
        if (action) std::exchange(action, nullptr)();
    }
    String name;
    String& log;
    std::function<void()> action;
};

class PlateEventsTest : public testing::Test {
  protected:
    PlateEventsTest() {
        for (Actor* each : {&a, &b, &c})
            events.Add(*each);
    }
    String Raise() {
        events.Raise([](PlateObserver& each) { each.Click(); });
        return std::exchange(log, {});
    }

    String log;
    PlateEvents events;
    Actor a{"a", log}, b{"b", log}, c{"c", log}, d{"d", log};
};

TEST_F(PlateEventsTest, ObserversMayComeAndGoDuringAnEvent) {
    b.action = [this] { events.Remove(b); };
    EXPECT_EQ(Raise(), "abc");
    EXPECT_EQ(Raise(), "ac");

    a.action = [this] {
        events.Add(d);
        events.Remove(c);
    };
    EXPECT_EQ(Raise(), "a");
    EXPECT_EQ(Raise(), "ad");
}

TEST_F(PlateEventsTest, AnEventMayBeRaisedDuringAnother) {
    a.action = [this] {
        events.Raise([](PlateObserver& each) { each.Click(); });
        events.Remove(a);
        events.Add(a);
    };
    EXPECT_EQ(Raise(), "aabcbc");
    EXPECT_EQ(Raise(), "bca");
}

TEST_F(PlateEventsTest, AFailingObserverDoesNotDisturbTheOthersForGood) {
    b.action = [this] {
        events.Remove(a);
        throw RuntimeError(5, "host", "refused");
    };
    EXPECT_EQ(NumberRaisedBy([&] { Raise(); }), 5);
    log.clear();
    EXPECT_EQ(Raise(), "bc");
}

using ControlEventsTest = ControlTest;

TEST_F(ControlEventsTest, ClicksNeedAnEnabledMouse) {
    const auto heard = [&](void (Plate::*input)(), const String& event, Long focus,
                           Long focusWhileDisabled) {
        SCOPED_TRACE(event);
        for (const Boolean enabled : {true, false}) {
            plate.MouseEnabled(enabled);
            site.focusRequests = 0;
            (plate.*input)();
            EXPECT_EQ(events.Take(), enabled ? event : "");
            EXPECT_EQ(site.focusRequests, enabled ? focus : focusWhileDisabled);
        }
    };
    heard(&Plate::AreaClicked, "Click", 1, 1);
    heard(&Plate::AreaDoubleClicked, "DoubleClick", 0, 0);
    heard(&Plate::PanelClicked, "Click", 0, 0);
    heard(&Plate::PanelDoubleClicked, "DoubleClick", 0, 0);
    heard(&Plate::BackgroundPressed, "", 1, 0);
}

} // namespace
} // namespace zorvane
