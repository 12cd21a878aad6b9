#pragma once

#include <array>
#include <string_view>

namespace zorvane {

/// The names of the style codes, in the order of the codes from 0.
inline constexpr std::array<std::string_view, 4> kStyleNames{"ROUND", "CCSHELF", "PILLAR",
                                                             "SQUARE"};

} // namespace zorvane
