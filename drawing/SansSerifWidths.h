#pragma once

#include "runtime/Types.h"

#include <string_view>

namespace zorvane {

/// About how wide a text is in the usual sans-serif fonts, in multiples of the font's size. For
/// canvases that have no fonts to measure.
Single SansSerifWidth(std::string_view text, Boolean bold);

} // namespace zorvane
