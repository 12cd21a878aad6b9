#include "control/ControlFixture.h"

namespace zorvane {
namespace {

using WellDataTest = ControlTest;

TEST_F(WellDataTest, GuardedMembersIgnoreWellsBeyondTheLastAndFailBelowTheFirst) {
    Load(OneDrop());
    const auto guarded = [&](const char* name, auto use) {
        for (const int well : {95, 96, 97, 32767, -1}) {
            const auto wellNo = static_cast<Integer>(well);
            plate.CurrentWell(wellNo);
            EXPECT_EQ(NumberRaisedBy([&] { use(wellNo); }), well < 0 ? 9 : 0) << name << well;
        }
    };
    // The readers come first: what they find is what a well holds that was never set.
    guarded("Text", [&](Integer i) { EXPECT_EQ(plate.Text(i), ""); });
    guarded("ErrorCode", [&](Integer i) { EXPECT_EQ(plate.ErrorCode(i), 0); });
    guarded("GetVolume", [&](Integer i) { EXPECT_EQ(plate.GetVolume(i), 0); });
    guarded("CurrentVolume", [&](Integer) { EXPECT_EQ(plate.CurrentVolume(), 0); });
    guarded("WellAnnotation", [&](Integer i) { EXPECT_EQ(plate.WellAnnotation(i), ""); });
    guarded("IsDefined", [&](Integer i) { EXPECT_FALSE(plate.IsDefined(i)); });
    guarded("Text=", [&](Integer i) { plate.Text(i, "x"); });
    guarded("ErrorCode=", [&](Integer i) { plate.ErrorCode(i, 1); });
    guarded("SetVolume", [&](Integer i) { plate.SetVolume(i, 1); });
    guarded("CurrentVolume=", [&](Integer) { plate.CurrentVolume(1); });
    guarded("WellAnnotation=", [&](Integer i) { plate.WellAnnotation(i, "x"); });
    guarded("IsDefined=", [&](Integer i) { plate.IsDefined(i, true); });
    EXPECT_FALSE(plate.IsSelected(-1) || plate.IsSelected(96));
}

TEST_F(WellDataTest, UnguardedMembersFailOutsideThePlate) {
    Load(OneDrop());
    const auto unguarded = [&](const char* name, auto use) {
        for (const int outside : {-1, 97, 32767}) {
            plate.CurrentWell(static_cast<Integer>(outside));
            EXPECT_EQ(NumberRaisedBy(use), 9) << name << " of " << outside;
        }
    };
    unguarded("SolutionDefined", [&] { plate.SolutionDefined(); });
    unguarded("SolutionDefined=", [&] { plate.SolutionDefined(true); });
    unguarded("WellColor", [&] { plate.WellColor(); });
    unguarded("WellColor=", [&] { plate.WellColor("1"); });
    unguarded("RimColor", [&] { plate.RimColor(); });
    unguarded("RimColor=", [&] { plate.RimColor("1"); });
    unguarded("WellSelected", [&] { plate.WellSelected(); });
    unguarded("ClearWell", [&] { plate.ClearWell(); });
}

TEST_F(WellDataTest, TheDefinedMarkColoursByTheErrorCodeSetBefore) {
    Load(OneDrop());
    plate.DefinedWellColor = 0x00FF00;
    plate.ErrorWellColor = 0x0000FF;
    plate.ErrorCode(5, 3);
    plate.IsDefined(5, true);
    EXPECT_EQ(Shown().WellBottom[5].fill, 0x0000FF);
    plate.IsDefined(6, true);
    plate.ErrorCode(6, 3);
    EXPECT_EQ(Shown().WellBottom[6].fill, 0x00FF00);
    plate.IsDefined(5, false);
    EXPECT_EQ(Shown().WellBottom[5].fill, plate.DefaultWellColor());
    EXPECT_EQ(plate.ErrorCode(5), 0);

    plate.CurrentWell(7);
    plate.SolutionDefined(true);
    EXPECT_TRUE(plate.IsDefined(7));
    EXPECT_EQ(Shown().WellBottom[7].fill, plate.DefaultWellColor());
}

TEST_F(WellDataTest, ColoursAreText) {
    Load(OneDrop());
    EXPECT_EQ(plate.WellColor(), "14737632");
    const auto color = [&](const char* text, Long number, const char* read) {
        EXPECT_EQ(NumberRaisedBy([&] { plate.WellColor(text); }), number) << text;
        EXPECT_EQ(NumberRaisedBy([&] { plate.RimColor(text); }), number) << text;
        EXPECT_EQ(plate.WellColor(), read) << text;
        EXPECT_EQ(plate.RimColor(), read) << text;
    };
    color("255", 0, "255");
    color(" 128 ", 0, "128");
    color("&HFF00", 0, "65280");
    color("&h8000000F", 0, "-2147483633");
    for (const char* bad : {"", "red", "12x", "&H", "0xFF"})
        color(bad, 13, "-2147483633");
}

TEST_F(WellDataTest, OneColourIsOneRepaintOfThatWell) {
    plate.HorizontalCentred = true;
    plate.PlateClassText(OneDrop());
    site.repaints.clear();
    plate.WellColor("255");
    EXPECT_EQ(site.repaints, std::vector{Bottom(0).Moved(300, 0)});
    for (const auto& [rows, cols] : {std::pair{8, 12}, std::pair{160, 200}}) {
        Load(GridText(rows, cols, SubWellText("Drop1", 10, 10, 1), "XPITCH 2\r\nYPITCH 2\r\n"));
        const Integer last = static_cast<Integer>(plate.TotalWells() - 1);
        plate.CurrentWell(last);
        const auto at = static_cast<std::size_t>(last);
        plate.WellColor("255");
        plate.RimColor("255");
        plate.IsDefined(last, true);
        plate.SelectWell(last, true);
        EXPECT_EQ(site.repaints, (std::vector{Bottom(at), Rim(at), Bottom(at), Rim(at)})) << last;
    }
}

TEST_F(WellDataTest, ClearingAWellKeepsItsTextErrorAndSelection) {
    Load(DropOnReservoir(2, 2));
    for (Integer i = 0; i < 8; ++i) {
        plate.CurrentWell(i);
        plate.Text(i, "text");
        plate.ErrorCode(i, 7);
        plate.IsDefined(i, true);
        plate.SetVolume(i, 2);
        plate.WellAnnotation(i, "note");
        plate.SelectWell(i, true);
    }
    plate.CurrentWell(3);
    plate.ClearWell();
    plate.ClearSubWells("reservoir");
    EXPECT_EQ(plate.CurrentWell(), 4);
    EXPECT_EQ(plate.Location(), "Reservoir, 0, 0");
    for (Integer i = 0; i < 8; ++i) {
        SCOPED_TRACE(i);
        const Boolean cleared = i >= 3;
        EXPECT_EQ(plate.IsDefined(i), !cleared);
        EXPECT_EQ(plate.GetVolume(i), cleared ? 0 : 2);
        EXPECT_EQ(plate.WellAnnotation(i), cleared ? "" : "note");
        EXPECT_EQ(Shown().WellBottom[static_cast<std::size_t>(i)].fill,
                  cleared ? plate.DefaultWellColor() : plate.ErrorWellColor);
        EXPECT_EQ(plate.Text(i), "text");
        EXPECT_EQ(plate.ErrorCode(i), 7);
        EXPECT_TRUE(plate.IsSelected(i));
    }
    EXPECT_EQ(NumberRaisedBy([&] { plate.ClearSubWells("Other"); }), 91);
    EXPECT_EQ(plate.CurrentWell(), 8);
}

TEST_F(WellDataTest, GeometryBelongsToTheCurrentSubWell) {
    Load(DropOnReservoir());
    using Get = Single (Plate::*)() const;
    using Set = void (Plate::*)(Single);
    const auto geometry = [&](const char* name, Get get, Set set) {
        SCOPED_TRACE(name);
        plate.WellIndex(1);
        const Single others = (plate.*get)();
        plate.WellIndex(2);
        (plate.*set)(4);
        EXPECT_EQ((plate.*get)(), 4);
        plate.WellIndex(1);
        EXPECT_EQ((plate.*get)(), others);
        plate.CurrentWell(-97); // sub-well position 0
        ASSERT_EQ(plate.WellIndex(), 0);
        (plate.*set)(5);
        EXPECT_EQ((plate.*get)(), 0);
        plate.WellIndex(3);
        EXPECT_EQ(NumberRaisedBy([&] { (plate.*set)(5); }), 9);
    };
    geometry("MaxVolume", &Plate::MaxVolume, &Plate::MaxVolume);
    geometry("Depth", &Plate::Depth, &Plate::Depth);
    geometry("WellDiameter", &Plate::WellDiameter, &Plate::WellDiameter);
    geometry("WellSizeX", &Plate::WellSizeX, &Plate::WellSizeX);
    geometry("WellSizeY", &Plate::WellSizeY, &Plate::WellSizeY);
    geometry("RimWidth", &Plate::RimWidth, &Plate::RimWidth);
    geometry("RimHeight", &Plate::RimHeight, &Plate::RimHeight);
    geometry("xOffset", &Plate::xOffset, &Plate::xOffset);
    geometry("yOffset", &Plate::yOffset, &Plate::yOffset);
    geometry("InitialVolume", &Plate::InitialVolume, &Plate::InitialVolume);
    plate.WellIndex(2);
    EXPECT_EQ(plate.WellDiameter(), 4);
    plate.WellSizeX(7);
    EXPECT_EQ(plate.WellDiameter(), 5.5F);
    plate.WellSizeX(2);
    EXPECT_NE(Bottom(96).width, 90); // as before, until the initial volume lays the plate out again
    plate.InitialVolume(0.1F);
    EXPECT_EQ(Bottom(96).width, 90);
    EXPECT_EQ(Shown().WellTag[95] + Shown().WellTag[96] + Shown().WellTag[191], "0.10.1");
}

TEST_F(WellDataTest, CoordinatesOfWells) {
    Load(DropOnReservoir());
    plate.XLeft = 100;
    plate.YTop = 200;
    plate.SetWell(2, 3, "reservoir");
    EXPECT_EQ(plate.CurrentWellX(), 3 * 9 + 10);
    EXPECT_EQ(plate.CurrentWellY(), 2 * 9 + 10);
    EXPECT_EQ(plate.CurrentWellZ(), 14 - 5);
    EXPECT_EQ(plate.WellX(3, 2, "RESERVOIR"), 3 * 9 + 10 + 100);
    EXPECT_EQ(plate.WellY(3, 2, "Drop1"), 2 * 9 + 8 + 200);
    EXPECT_EQ(plate.WellZ(-3, 99, "Drop1"), 9);
    EXPECT_EQ(NumberRaisedBy([&] { plate.WellZ(0, 0, "Default"); }), 5);
    plate.PlateClassText(plate.PlateClassText()); // no sub-well chosen
    EXPECT_EQ(plate.CurrentWellZ(), 0);
    EXPECT_EQ(plate.CurrentWellX(), 0);

    Single x = 0, y = 0, z = 1, right = 0, bottom = 0, top = 0;
    plate.WellCentroid(x, y, z, 2, 3, "Drop1");
    // The reservoir's rim goes from 6 mm to 14 mm and holds the drop's.
    EXPECT_EQ(x, 27 + 10);
    EXPECT_EQ(y, 18 + 10);
    EXPECT_EQ(z, 0);
    plate.WellEnvelope(x, y, z, right, bottom, top, 2, 3, "Drop1");
    EXPECT_EQ(x, 27 + 6);
    EXPECT_EQ(bottom, 18 + 14);
    EXPECT_EQ(top, 0);
}

} // namespace
} // namespace zorvane
