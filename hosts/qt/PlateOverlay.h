#pragma once

#include "platform/InvertingOverlay.h"

#include <QRect>
#include <QSize>

class QPainter;

namespace zorvane {

/// The inverting outlines on the plate area of one widget: the shared bitmap, painted with a
/// QPainter.
class PlateOverlay {
  public:
    InvertingOverlay& Context() { return bitmap_; }

    /// Takes the size of the plate area, in device-independent pixels, and the device pixels in one
    /// of these. Returns whether that changed anything, which wipes the
    /// outlines.
    bool Fit(QSizeF area, qreal ratio);
    /// Wipes the outlines; returns whether there were any.
    bool Clear();

    /// Inverts the pixels under the outlines. `area` is where the plate area lies in the painter's
    /// units, `clip` what is worth painting.
    void Paint(QPainter& painter, const QRect& area, const QRect& clip) const;
    /// The device-independent pixels in the plate area that a part of the bitmap shows in.
    QRectF Shown(const Rect& pixels) const;

  private:
    InvertingOverlay bitmap_;
    qreal ratio_ = 1;
};

} // namespace zorvane
