#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace zorvane {

/// A colour that can be painted.
struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend constexpr bool operator==(const Rgb&, const Rgb&) = default;
};

inline constexpr Rgb kBlack{0, 0, 0};
inline constexpr Rgb kWhite{255, 255, 255};

/// What the system colours of the desktop look like, by index; fixed, light colours unless a host
/// fills in those of its desktop.
struct ZORVANE_EXPORT SystemPalette {
    static constexpr std::size_t kColors = 31;

    SystemPalette();

    std::array<Rgb, kColors> colors;
};

/// The colour to paint for one of the control. Unknown system colours are black.
ZORVANE_EXPORT Rgb Resolve(Long color, const SystemPalette& palette);

/// `text`, or black or white where that would be hard to read on `back`.
ZORVANE_EXPORT Rgb ReadableOn(Rgb back, Rgb text);

} // namespace zorvane
