#include "welldata/VolumeScale.h"

#include "control/WellGrid.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace zorvane {

namespace {

/// A colour by lightness (0 to 1), chroma and hue (radians) of the Oklab space, in which equal
/// distances look equal. A path on which lightness and hue change evenly and the chroma stays is
/// therefore even to the eye.
struct Lch {
    Double lightness;
    Double chroma;
    Double hue;
};

constexpr Double kChroma = 0.1;
constexpr Lch kLight{0.92, kChroma, 1.92}; // yellow-green
constexpr Lch kDark{0.40, kChroma, 4.60};  // blue

std::uint32_t Channel(Double linear) {
    const Double light = std::clamp(linear, 0.0, 1.0);
    const Double encoded =
        light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
    return static_cast<std::uint32_t>(std::lround(encoded * 255));
}

Double Cube(Double x) { return x * x * x; }

Long ToColor(const Lch& color) {
    const Double a = color.chroma * std::cos(color.hue);
    const Double b = color.chroma * std::sin(color.hue);
    const Double l = Cube(color.lightness + 0.3963377774 * a + 0.2158037573 * b);
    const Double m = Cube(color.lightness - 0.1055613458 * a - 0.0638541728 * b);
    const Double s = Cube(color.lightness - 0.0894841775 * a - 1.2914855480 * b);
    const std::uint32_t red = Channel(4.0767416621 * l - 3.3077115913 * m + 0.2309699292 * s);
    const std::uint32_t green = Channel(-1.2684380046 * l + 2.6097574011 * m - 0.3413193965 * s);
    const std::uint32_t blue = Channel(-0.0041960863 * l - 0.7034186147 * m + 1.7076147010 * s);
    return static_cast<Long>(blue << 16U | green << 8U | red);
}

} // namespace

std::optional<Single> KnownVolume(const Plate& plate, Integer wellNo) {
    const Single volume = plate.GetVolume(wellNo);
    if (volume == 0 && !plate.IsDefined(wellNo)) return std::nullopt;
    return volume;
}

VolumeScale::VolumeScale(const Plate& plate, Integer subWell) {
    const WellGrid grid{plate.Rows, plate.Cols};
    const Integer end = grid.NumberOf({subWell, plate.Rows, 0});
    for (Integer well = grid.NumberOf({subWell, 0, 0}); well < end; ++well)
        Include(plate.GetVolume(well));
}

void VolumeScale::Include(Single volume) {
    if (volume == 0) return;
    least_ = empty_ ? volume : std::min(least_, volume);
    greatest_ = empty_ ? volume : std::max(greatest_, volume);
    empty_ = false;
}

Long VolumeScale::ColorOf(Single volume) const {
    if (volume == 0) return kZeroColor;
    const Double range = Double{greatest_} - least_;
    return ColorAt(range > 0 ? (Double{volume} - least_) / range : 1);
}

Long VolumeScale::ColorAt(Double place) {
    const Double at = std::clamp(place, 0.0, 1.0);
    return ToColor({std::lerp(kLight.lightness, kDark.lightness, at), kChroma,
                    std::lerp(kLight.hue, kDark.hue, at)});
}

} // namespace zorvane
