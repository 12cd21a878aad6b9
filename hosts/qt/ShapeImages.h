#pragma once

#include "drawing/Canvas.h"

#include <QCache>
#include <QImage>
#include <QSize>

namespace zorvane {

/// Shapes painted once and kept as small images, so that thousands of equal wells cost one image
/// copy each. Bounded: the images used longest ago make room for new ones.
class ShapeImages {
  public:
    /// Shapes longer than this many device pixels are better painted afresh.
    static constexpr int kLongestSide = 256;

    /// The image of a shape of this size in device pixels, valid until the next call; null for a
    /// shape too large to keep, or of no size.
    const QImage* Find(const ShapeStyle& style, QSize size);

  private:
    struct Key {
        quint32 size;
        quint32 fillAndStyle;

        friend bool operator==(const Key&, const Key&) = default;
        friend size_t qHash(const Key& key, size_t seed) noexcept {
            return qHash(quint64{key.size} << 32 | key.fillAndStyle, seed);
        }
    };

    static constexpr int kCapacity = 4 << 20; // bytes
    QCache<Key, QImage> images_{kCapacity};
};

/// Paints a shape that fills a box of whole device pixels; the painter's unit is the device pixel.
void PaintShape(QPainter& painter, const ShapeStyle& style, const QRect& box);

} // namespace zorvane
