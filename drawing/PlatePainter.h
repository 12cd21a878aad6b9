#pragma once

#include "control/Surface.h"
#include "drawing/Canvas.h"
#include "drawing/Palette.h"
#include "runtime/Export.h"

#include <cstdint>

namespace zorvane {

/// Whether the button that opens the details panel is painted, or shown by the host.
enum class DataButton : std::uint8_t { Painted, Native };

/// Paints what a control shows, from back to front, as far as the canvas's clip touches it: the
/// background, the plate area with its wells, legends and selection box, the details panel's frame
/// and the button that opens it, except for hosts that show a real one. Visits no well outside of
/// the clip and allocates nothing for wells without a caption.
ZORVANE_EXPORT void PaintControl(const Surface& surface, const SystemPalette& palette,
                                 Canvas& canvas, DataButton button = DataButton::Painted);

} // namespace zorvane
