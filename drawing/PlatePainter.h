#pragma once

#include "control/Surface.h"
#include "drawing/Canvas.h"
#include "drawing/Palette.h"
#include "runtime/Export.h"

#include <cstdint>

namespace zorvane {

/// Whether the details panel's frame and the button that opens it are painted, or shown by the
/// host.
enum class Details : std::uint8_t { Painted, Native };

/// Paints what a control shows, from back to front, as far as the canvas's clip touches it: the
/// background, the plate area with its wells, legends and selection box, the details panel's frame
/// and the button that opens it, except for hosts that show real ones. Visits no well outside of
/// the clip and allocates nothing for wells without a caption.
ZORVANE_EXPORT void PaintControl(const Surface& surface, const SystemPalette& palette,
                                 Canvas& canvas, Details details = Details::Painted);

} // namespace zorvane
