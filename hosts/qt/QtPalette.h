#pragma once

#include "drawing/Palette.h"
#include "runtime/Types.h"

#include <QColor>
#include <QPalette>

namespace zorvane {

inline QColor ToColor(Rgb color) { return {color.red, color.green, color.blue}; }

/// The desktop's colours, as the system colours of a control.
SystemPalette SystemColors(const QPalette& palette);

/// A control's colour value; `fallback` for an invalid colour.
Long ToLong(const QColor& color, Long fallback);

} // namespace zorvane
