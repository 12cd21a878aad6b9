#include "control/ControlFixture.h"

#include <functional>

namespace zorvane {
namespace {

/// Writes down what has changed, with the events.
class ChangeLog final : public EventLog {
  public:
    void PlateChanged() override { Add("plate"); }
    void CurrentWellChanged(Integer wellNo) override { Add("well", wellNo); }
    void SelectionChanged() override { Add("selection"); }
    void WellDataChanged(Integer first, Integer last) override { Add("data", first, last); }
};

class NotificationsTest : public ControlTest {
  public:
    NotificationsTest() { plate.AddObserver(changes); }

    void Forget() {
        site.repaints.clear();
        site.panelChanges = site.resizes = site.dataButtonChanges = 0;
        changes.Take();
    }
    /// Repaints, changes of the panel, resizes and changes of the details button.
    String Counts() const {
        String counts;
        for (const Long each : {static_cast<Long>(site.repaints.size()), site.panelChanges,
                                site.resizes, site.dataButtonChanges})
            counts += (counts.empty() ? "" : " ") + std::to_string(each);
        return counts;
    }

    ChangeLog changes;
};

TEST_F(NotificationsTest, EveryOperationIsHandedOutOnce) {
    const struct {
        const char* what;
        void (*run)(Plate&);
        const char* counts;
        const char* changed;
    } rows[] = {
        {"load", [](Plate& p) { p.PlateClassText(OneDrop()); }, "1 1 0 1", "plate"},
        {"scale", [](Plate& p) { p.DrawingScale(40); }, "1 1 1 0", "plate"},
        {"volume", [](Plate& p) { p.InitialVolume(2); }, "1 1 0 0", "plate"},
        {"open", [](Plate& p) { p.DataVisible(true); }, "1 1 1 0", ""},
        {"edit", [](Plate& p) { p.EditEnable(true); }, "0 1 0 0", ""},
        {"page", [](Plate& p) { p.PageChosen(2); }, "0 1 0 0", ""},
        // Once before the event and once after it, when the panel is open again.
        {"apply", [](Plate& p) { p.ApplyPressed(); }, "2 2 1 0", "plate, ApplyChanges"},
        {"rotate", [](Plate& p) { p.MenuChosen(mnuRotate90); }, "1 1 1 0", "plate"},
        {"array", [](Plate& p) { p.SetArray(1, 1, 3, 2, "", foTopLeftVertical, 255); }, "1 0 0 0",
         "well 27, selection, data 13 27"},
        {"fill", [](Plate& p) { p.FillArray(255, "#"); }, "1 0 0 0", "well 27, data 13 27"},
        {"all", [](Plate& p) { p.SelectAll(true); }, "1 0 0 0", "selection, data 0 95"},
        {"none", [](Plate& p) { p.ClearSelection(); }, "0 0 0 0", ""},
        {"fill one", [](Plate& p) { p.WellFill(95, 255); }, "1 0 0 0", "data 95 95"},
        {"rim of none", [](Plate& p) { p.RimFill(96, 255); }, "0 0 0 0", ""},
        {"text", [](Plate& p) { p.Text(7, "x"); }, "0 0 0 0", "data 7 7"},
        {"clear", [](Plate& p) { p.ClearSubWells("Drop1"); }, "1 0 0 0", "data 0 95"},
        {"mark", [](Plate& p) { p.Selected(true); }, "1 1 0 1", ""},
        {"mouse", [](Plate& p) { p.MouseEnabled(false); }, "1 0 0 1", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        plate.MouseEnabled(true);
        Load(OneDrop());
        plate.WellIndex(1);
        Forget();
        row.run(plate);
        EXPECT_EQ(Counts(), row.counts);
        EXPECT_EQ(changes.Take(), row.changed);
    }
}

TEST_F(NotificationsTest, AFailingOperationHandsOutWhatItChanged) {
    Load(OneDrop());
    Forget();
    EXPECT_EQ(NumberRaisedBy([&] { plate.FillArray(255, "#", 1, 1); }), 0); // no block
    EXPECT_EQ(NumberRaisedBy([&] { plate.PlateClassText(OneDrop(1, 80)); }), 6);
    EXPECT_EQ(Counts(), "1 1 0 1");
    EXPECT_EQ(changes.Take(), "plate");
}

TEST_F(NotificationsTest, ALaterOperationOfTheHostInAnEventIsHandedOutInIt) {
    struct Answering final : PlateObserver {
        std::function<void()> onApply;
        void ApplyChanges() override { onApply(); }
    } answering;
    String before, after;
    answering.onApply = [&] {
        before = Counts();
        plate.WellFill(3, 255);
        after = Counts();
    };
    plate.AddObserver(answering);
    Load(OneDrop());
    Forget();
    plate.ApplyPressed();
    EXPECT_EQ(before, "1 1 0 0");
    EXPECT_EQ(after, "2 1 0 0");
    EXPECT_EQ(site.repaints[1], Bottom(3));
    plate.RemoveObserver(answering);
}

TEST_F(NotificationsTest, AColourRepaintsTheElementThatHasIt) {
    plate.HorizontalCentred = true;
    plate.PlateClassText(OneDrop());
    site.repaints.clear();
    plate.WellColor("255");
    plate.RimColor("255");
    plate.SelectWell(95, true);
    EXPECT_EQ(site.repaints,
              (std::vector{Bottom(0).Moved(300, 0), Rim(0).Moved(300, 0), Rim(95).Moved(300, 0)}));
}

} // namespace
} // namespace zorvane
