#include "welldata/VolumeScale.h"

#include "apps/LoadedPlate.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zorvane {
namespace {

/// CIE lightness, 0 to 100: how light a colour looks, by another model than the one of the scale.
double Lightness(Long color) {
    const auto linear = [&](int shift) {
        const double value = ((color >> shift) & 0xFF) / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    const double luminance = 0.2126 * linear(0) + 0.7152 * linear(8) + 0.0722 * linear(16);
    return 116 * std::cbrt(luminance) - 16;
}

TEST(VolumeScale, GrowsDarkerInEvenSteps) {
    constexpr int steps = 10;
    const double range = Lightness(VolumeScale::ColorAt(0)) - Lightness(VolumeScale::ColorAt(1));
    EXPECT_GT(range, 50);
    for (int i = 0; i < steps; ++i) {
        const double step = Lightness(VolumeScale::ColorAt(double(i) / steps)) -
                            Lightness(VolumeScale::ColorAt(double(i + 1) / steps));
        EXPECT_NEAR(step, range / steps, range / steps * 0.25) << "step " << i;
    }
}

TEST(VolumeScale, KeepsZeroAndMissingApartFromAnyVolume) {
    LoadedPlate host;
    Plate& plate = host.plate;
    EXPECT_TRUE(VolumeScale(plate, 1).Empty());

    plate.IsDefined(1, true);
    plate.SetVolume(2, 5);
    plate.SetVolume(3, 20);
    EXPECT_FALSE(KnownVolume(plate, 0));
    EXPECT_EQ(KnownVolume(plate, 1), 0.0F);

    const VolumeScale scale(plate, 1);
    EXPECT_EQ(scale.ColorOf(5), VolumeScale::ColorAt(0));
    EXPECT_EQ(scale.ColorOf(12.5F), VolumeScale::ColorAt(0.5));
    EXPECT_EQ(scale.ColorOf(100), VolumeScale::ColorAt(1));
    EXPECT_NE(scale.ColorOf(0), plate.DefaultWellColor());
}

} // namespace
} // namespace zorvane
