#pragma once

#include "runtime/Geometry.h"
#include "runtime/Types.h"

#include <QPointF>
#include <QRectF>

namespace zorvane {

/// Drawing units (1440 an inch) in one device-independent pixel (96 an inch).
inline constexpr Single kUnitsPerPixel = 15;

/// The longest side of a control in device-independent pixels: in drawing units it is a 16-bit
/// number.
inline constexpr int kLongestSide = 2184;

inline Single ToUnits(qreal pixels) { return static_cast<Single>(pixels * double{kUnitsPerPixel}); }

inline qreal ToPixels(Single units) { return double{units} / double{kUnitsPerPixel}; }

inline Rect ToUnits(const QRectF& area) {
    return {ToUnits(area.x()), ToUnits(area.y()), ToUnits(area.width()), ToUnits(area.height())};
}

inline QRectF ToPixels(const Rect& box) {
    return {ToPixels(box.left), ToPixels(box.top), ToPixels(box.width), ToPixels(box.height)};
}

} // namespace zorvane
