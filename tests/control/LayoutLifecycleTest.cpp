#include "control/ControlFixture.h"

namespace zorvane {
namespace {

using LayoutLifecycleTest = ControlTest;

TEST_F(LayoutLifecycleTest, ASmallerPlateKeepsTheRecordsItHasWellsFor) {
    Load(OneDrop(8, 12));
    plate.Text(23, "kept");
    plate.Text(24, "released");
    Load(OneDrop(4, 6));
    EXPECT_EQ(Shown().WellRim.size(), 24U);
    EXPECT_EQ(Shown().WellText.size(), 24U);
    EXPECT_EQ(plate.Text(23), "kept");
    EXPECT_EQ(plate.Text(24), "");
    const auto raises = [&](Integer wellNo, Long number) {
        plate.CurrentWell(wellNo);
        EXPECT_EQ(NumberRaisedBy([&] { plate.SolutionDefined(); }), number) << wellNo;
    };
    raises(23, 0);
    raises(24, 91);
    raises(96, 91);
    raises(97, 9);
    raises(-1, 9);

    Load(OneDrop(8, 12)); // grows: every record is new
    EXPECT_EQ(plate.Text(23), "");
    EXPECT_EQ(Shown().WellRim.size(), 96U);
    plate.Text(95, "kept");
    Load(OneDrop(12, 8)); // as large as before
    EXPECT_EQ(plate.Text(95), "kept");
}

TEST_F(LayoutLifecycleTest, APlateWithoutSubWellsShowsAnEmptyArea) {
    Load(OneDrop());
    Load(GridText(8, 12, ""));
    EXPECT_EQ(plate.TotalWells(), 0);
    ASSERT_EQ(Shown().WellRim.size(), 1U);
    EXPECT_FALSE(Shown().WellRim[0].visible || Shown().WellBottom[0].visible ||
                 Shown().WellText[0].visible);
    EXPECT_TRUE(Shown().paintOrder.empty());
    EXPECT_EQ(Shown().lblWell.size(), 21U);
    for (const Label& legend : Shown().lblWell)
        EXPECT_FALSE(legend.visible);
    EXPECT_TRUE(Shown().fraPlate.visible);
    EXPECT_EQ(Shown().fraPlate.caption, "Demo");
    EXPECT_EQ(plate.MouseToWell(500, 500), 0); // the grid of the plate before, as ever
    EXPECT_EQ(plate.Text(0), "");
}

TEST_F(LayoutLifecycleTest, AFailedLayoutLeavesThePlateAreaHidden) {
    Load(OneDrop());
    const auto fails = [&](const String& text, Long number, Boolean hidden, const char* what) {
        SCOPED_TRACE(what);
        plate.PlateClassText(OneDrop());
        EXPECT_TRUE(Shown().fraPlate.visible && Shown().WellRim[95].visible);
        EXPECT_EQ(NumberRaisedBy([&] { plate.PlateClassText(text); }), number);
        EXPECT_EQ(Shown().fraPlate.visible, !hidden);
        for (const PaintRun& run : Shown().paintOrder) {
            const bool wells = run.kind == PaintRun::Kind::Wells;
            EXPECT_LE(static_cast<std::size_t>(run.first + run.count),
                      wells ? Shown().WellRim.size() : Shown().lblWell.size());
        }
    };
    const auto one = [](Single size) { return SubWellText("A", 10, 10, size); };
    fails(OneDrop(200, 200), 6, false, "40,000 wells");
    fails(GridText(1, 1, "", "XOVERALL 700\r\n"), 6, false, "a frame of 35,000 units");
    fails(OneDrop(1, 80), 6, true, "a last column at 36,000 units");
    fails(OneDrop(80, 1), 6, true, "a last row at 36,000 units");
    fails(GridText(1, 1, one(660)), 6, true, "a rim of 33,000 units");
    fails(GridText(2, 1, one(1), "ROWLABEL \r\n"), 5, true, "a row without a label");
    for (const char* size : {"XOVERALL 0\r\n", "YOVERALL 0\r\n"}) {
        const String text = GridText(1, 1, one(1), size);
        plate.FixedSize = true;
        EXPECT_EQ(NumberRaisedBy([&] { plate.PlateClassText(text); }), 11) << size;
        plate.FixedSize = false;
        EXPECT_EQ(NumberRaisedBy([&] { plate.PlateClassText(text); }), 0) << size;
    }
}

TEST_F(LayoutLifecycleTest, OnlyAFullResetClearsWhatTheHostShowed) {
    Load(OneDrop());
    plate.SetWell(0, 5);
    plate.WellColor("255");
    plate.WellAnnotation(5, "note");
    plate.Text(5, "text");
    plate.DefaultRimColor(0x111111);
    plate.DefaultWellColor(0x222222);

    plate.DrawingScale(40);
    EXPECT_EQ(Rim(5).left, 400 + 5 * 360 - 165);
    EXPECT_EQ(plate.RimColor(), std::to_string(plate.DefaultSelectColor));
    EXPECT_EQ(plate.WellColor(), "255");
    EXPECT_EQ(plate.WellAnnotation(5), "note");
    EXPECT_TRUE(plate.IsSelected(5));

    plate.InitialVolume(2.5F);
    plate.CurrentWell(5);
    EXPECT_EQ(plate.RimColor(), std::to_string(0x111111));
    EXPECT_EQ(plate.WellColor(), std::to_string(0x222222));
    EXPECT_EQ(plate.WellAnnotation(5), "");
    EXPECT_FALSE(plate.IsSelected(5));
    EXPECT_EQ(plate.NSelected(), 1); // stays until the next single selection
    EXPECT_EQ(plate.Text(5), "text");
    EXPECT_EQ(Shown().WellTag[95], "2.5");
}

} // namespace
} // namespace zorvane
