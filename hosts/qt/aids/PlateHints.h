#pragma once

#include "drawing/Canvas.h"
#include "hosts/qt/aids/PlateLegends.h"

#include <QString>

namespace zorvane {

// What a widget may show over and beside what its control does.

/// Lights up the legends of a well's row and column, hidden ones too; nothing for a number that is
/// no well.
void HighlightLegends(const Plate& plate, Integer wellNo, Rgb back, Rgb text, Canvas& canvas);
/// The area that these take, in the control's coordinates; empty for a number that is no well.
Rect HighlightedLegends(const Plate& plate, Integer wellNo);

/// Puts an exclamation mark on each defined well with an error code, so that colour is not its only
/// mark.
void MarkErrors(const Plate& plate, Canvas& canvas);

/// Volume, text and error of a well, a line each; empty for a number that is no well.
QString DataOf(const Plate& plate, Integer wellNo);

} // namespace zorvane
