#include "apps/viewer/logic/VolumeColoring.h"

#include "apps/LoadedPlate.h"

#include <gtest/gtest.h>

namespace zorvane::viewer {
namespace {

struct ColoredPlate : LoadedPlate {
    Long Bottom(Integer well) const { return plate.WellFill(well); }
    VolumeColoring coloring{plate};
};

TEST(VolumeColoring, GivesTheWellsTheirOwnColoursBack) {
    ColoredPlate host;
    Plate& plate = host.plate;
    plate.CurrentWell(20);
    plate.IsDefined(1, true);
    plate.SetVolume(2, 5);
    plate.SetVolume(3, 9);
    plate.SetVolume(24, 100); // in another sub-well
    plate.SetVolume(25, 200);
    host.coloring.SetOn(true);
    EXPECT_EQ(host.Bottom(0), plate.DefaultWellColor());
    EXPECT_EQ(host.Bottom(1), VolumeScale::kZeroColor);
    EXPECT_EQ(host.Bottom(2), VolumeScale::ColorAt(0));
    EXPECT_EQ(host.Bottom(3), VolumeScale::ColorAt(1));
    EXPECT_EQ(host.Bottom(24), VolumeScale::ColorAt(0));
    EXPECT_EQ(host.coloring.OwnColor(1), plate.DefinedWellColor);

    host.coloring.SetOn(false);
    EXPECT_EQ(host.Bottom(1), plate.DefinedWellColor);
    EXPECT_EQ(host.Bottom(3), plate.DefaultWellColor());
    EXPECT_EQ(plate.CurrentWell(), 20);
}

TEST(VolumeColoring, KeepsUpWithChangesAlsoWithThoseThatFail) {
    ColoredPlate host;
    Plate& plate = host.plate;
    host.coloring.SetOn(true);
    EXPECT_THROW(host.coloring.WithOwnColors([&] {
        plate.SetVolume(4, 7);
        plate.IsDefined(5, true);
        throw RuntimeError(9, "", "");
    }),
                 RuntimeError);
    EXPECT_EQ(host.Bottom(4), VolumeScale::ColorAt(1));
    EXPECT_EQ(host.Bottom(5), VolumeScale::kZeroColor);

    // A smaller plate.
    host.coloring.WithOwnColors([&] { plate.PlateClassText(TwoSubWells(1, 2)); });
    EXPECT_EQ(plate.TotalWells(), 4);
    host.coloring.SetOn(false);
    EXPECT_EQ(host.Bottom(3), plate.DefaultWellColor());
}

} // namespace
} // namespace zorvane::viewer
