#pragma once

#include "drawing/Canvas.h"
#include "runtime/Types.h"

#include <string_view>

namespace zorvane {

/// The text as far as it fits a width, with "…" in place of what does not.
String Shortened(const Canvas& canvas, std::string_view text, Boolean bold, Single width);

/// Writes one line of text into its box, shortened where the box is too narrow for it.
void DrawFittedText(Canvas& canvas, const TextStyle& style, const Rect& box, std::string_view text);

/// Writes a text into its box in as many lines as fit there, broken at blanks and centred as a
/// block.
void DrawTextBlock(Canvas& canvas, const TextStyle& style, const Rect& box, std::string_view text);

/// How many lines of text a box holds: at least one.
Integer LinesIn(const Rect& box);

} // namespace zorvane
