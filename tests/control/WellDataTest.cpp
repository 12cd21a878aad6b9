#include "control/ControlFixture.h"

#include <functional>

namespace zorvane {
namespace {

using WellDataTest = ControlTest;

TEST_F(WellDataTest, GuardedMembersIgnoreWellsBeyondTheLastAndFailBelowTheFirst) {
    Load(OneDrop());
    using Member = std::function<void(Integer)>;
    const std::pair<const char*, Member> members[] = {
        {"Text", [&](Integer i) { EXPECT_EQ(plate.Text(i), ""); }},
        {"Text=", [&](Integer i) { plate.Text(i, "x"); }},
        {"ErrorCode", [&](Integer i) { EXPECT_EQ(plate.ErrorCode(i), 0); }},
        {"ErrorCode=", [&](Integer i) { plate.ErrorCode(i, 1); }},
        {"GetVolume", [&](Integer i) { EXPECT_EQ(plate.GetVolume(i), 0); }},
        {"CurrentVolume",
         [&](Integer i) {
             plate.CurrentWell(i);
             EXPECT_EQ(plate.CurrentVolume(), 0);
         }},
        {"SetVolume", [&](Integer i) { plate.SetVolume(i, 1); }},
        {"WellAnnotation", [&](Integer i) { EXPECT_EQ(plate.WellAnnotation(i), ""); }},
        {"WellAnnotation=", [&](Integer i) { plate.WellAnnotation(i, "x"); }},
        {"IsDefined", [&](Integer i) { EXPECT_FALSE(plate.IsDefined(i)); }},
        {"IsDefined=", [&](Integer i) { plate.IsDefined(i, true); }},
        {"CurrentVolume=",
         [&](Integer i) {
             plate.CurrentWell(i);
             plate.CurrentVolume(1);
         }},
    };
    for (const auto& [name, use] : members) {
        SCOPED_TRACE(name);
        for (const Integer beyond : {Integer{96}, Integer{97}, Integer{32767}})
            EXPECT_EQ(NumberRaisedBy([&] { use(beyond); }), 0) << beyond;
        EXPECT_EQ(NumberRaisedBy([&] { use(-1); }), 9);
        EXPECT_EQ(NumberRaisedBy([&] { use(95); }), 0);
    }
    EXPECT_FALSE(plate.IsSelected(-1) || plate.IsSelected(96));
}

TEST_F(WellDataTest, UnguardedMembersFailOutsideThePlate) {
    Load(OneDrop());
    using Member = std::function<void()>;
    const std::pair<const char*, Member> members[] = {
        {"SolutionDefined", [&] { plate.SolutionDefined(); }},
        {"SolutionDefined=", [&] { plate.SolutionDefined(true); }},
        {"WellColor", [&] { plate.WellColor(); }},
        {"WellColor=", [&] { plate.WellColor("1"); }},
        {"RimColor", [&] { plate.RimColor(); }},
        {"RimColor=", [&] { plate.RimColor("1"); }},
        {"WellSelected", [&] { plate.WellSelected(); }},
        {"ClearWell", [&] { plate.ClearWell(); }},
    };
    for (const auto& [name, use] : members) {
        for (const Integer outside : {Integer{-1}, Integer{97}, Integer{32767}}) {
            plate.CurrentWell(outside);
            EXPECT_EQ(NumberRaisedBy(use), 9) << name << " of " << outside;
        }
    }
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
    struct {
        const char* text;
        const char* read;
    } good[] = {
        {"255", "255"}, {" 128 ", "128"}, {"&HFF00", "65280"}, {"&h8000000F", "-2147483633"}};
    for (const auto& each : good) {
        plate.WellColor(each.text);
        plate.RimColor(each.text);
        EXPECT_EQ(plate.WellColor(), each.read);
        EXPECT_EQ(plate.RimColor(), each.read);
    }
    for (const char* bad : {"", "red", "12x", "&H", "0xFF"}) {
        EXPECT_EQ(NumberRaisedBy([&] { plate.WellColor(bad); }), 13) << bad;
        EXPECT_EQ(NumberRaisedBy([&] { plate.RimColor(bad); }), 13) << bad;
    }
    EXPECT_EQ(plate.WellColor(), "-2147483633");
}

TEST_F(WellDataTest, OneColourIsOneRepaintOfThatWell) {
    for (const auto& [rows, cols] : {std::pair{8, 12}, std::pair{160, 200}}) {
        SCOPED_TRACE(rows * cols);
        Load(GridText(rows, cols, SubWellText("Drop1", 10, 10, 1), "XPITCH 2\r\nYPITCH 2\r\n"));
        const Integer last = static_cast<Integer>(plate.TotalWells() - 1);
        plate.CurrentWell(last);
        const auto at = static_cast<std::size_t>(last);
        plate.WellColor("255");
        plate.RimColor("255");
        plate.IsDefined(last, true);
        plate.SelectWell(last, true);
        EXPECT_EQ(site.repaints, (std::vector<Rect>{Bottom(at), Rim(at), Bottom(at), Rim(at)}));
    }
}

TEST_F(WellDataTest, RepaintsFollowAPlateAreaThatIsCentred) {
    plate.HorizontalCentred = true;
    plate.PlateClassText(OneDrop());
    site.repaints.clear();
    plate.WellColor("255");
    EXPECT_EQ(site.repaints, std::vector<Rect>{Bottom(0).Moved(300, 0)});
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
    struct {
        const char* name;
        Single (Plate::*get)() const;
        void (Plate::*set)(Single);
    } properties[] = {
        {"MaxVolume", &Plate::MaxVolume, &Plate::MaxVolume},
        {"Depth", &Plate::Depth, &Plate::Depth},
        {"WellDiameter", &Plate::WellDiameter, &Plate::WellDiameter},
        {"WellSizeX", &Plate::WellSizeX, &Plate::WellSizeX},
        {"WellSizeY", &Plate::WellSizeY, &Plate::WellSizeY},
        {"RimWidth", &Plate::RimWidth, &Plate::RimWidth},
        {"RimHeight", &Plate::RimHeight, &Plate::RimHeight},
        {"xOffset", &Plate::xOffset, &Plate::xOffset},
        {"yOffset", &Plate::yOffset, &Plate::yOffset},
        {"InitialVolume", &Plate::InitialVolume, &Plate::InitialVolume},
    };
    for (const auto& [name, get, set] : properties) {
        SCOPED_TRACE(name);
        plate.WellIndex(1);
        const Single others = (plate.*get)();
        plate.WellIndex(2);
        (plate.*set)(4);
        plate.WellIndex(1);
        EXPECT_EQ((plate.*get)(), others);
        plate.WellIndex(2);
        EXPECT_EQ((plate.*get)(), 4);
        plate.CurrentWell(-97); // sub-well position 0
        ASSERT_EQ(plate.WellIndex(), 0);
        (plate.*set)(5);
        EXPECT_EQ((plate.*get)(), 0);
        plate.WellIndex(3);
        EXPECT_EQ(NumberRaisedBy([&] { (plate.*set)(5); }), 9);
    }
    plate.WellIndex(2);
    EXPECT_EQ(plate.WellDiameter(), 4);
    plate.WellSizeX(7);
    EXPECT_EQ(plate.WellDiameter(), 5.5F);
}

TEST_F(WellDataTest, OnlyTheInitialVolumeLaysThePlateOutAgain) {
    Load(DropOnReservoir(2, 2));
    plate.WellIndex(2);
    plate.WellSizeX(2);
    EXPECT_EQ(Bottom(4).width, 300);
    plate.InitialVolume(0.1F);
    EXPECT_EQ(Bottom(4).width, 90);
    EXPECT_EQ(Shown().WellTag, (std::vector<String>{"", "", "", "", "0.1", "0.1", "0.1", "0.1"}));
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
