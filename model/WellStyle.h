#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

#include <array>
#include <optional>
#include <string_view>

namespace zorvane {

/// A way to draw sub-wells: its names in definitions and for people, and which of the two outlines
/// are round instead of rectangular.
struct WellStyle {
    std::string_view name;
    const char* caption;
    bool roundBottom;
    bool roundRim;
};

/// The styles in the order of their codes, from 0.
inline constexpr std::array<WellStyle, 4> kWellStyles{{
    {"ROUND", "Round", true, true},
    {"CCSHELF", "Shelf", true, false},
    {"PILLAR", "Pillar", false, true},
    {"SQUARE", "Square", false, false},
}};

/// The style of a code; null for a code that has none.
constexpr const WellStyle* FindWellStyle(Long code) {
    if (code < 0 || code >= static_cast<Long>(kWellStyles.size())) return nullptr;
    return &kWellStyles[static_cast<std::size_t>(code)];
}

/// The code of the style with this name in any letter case, if there is one.
ZORVANE_EXPORT std::optional<Long> WellStyleCode(std::string_view name);

} // namespace zorvane
