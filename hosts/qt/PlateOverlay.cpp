#include "hosts/qt/PlateOverlay.h"

#include <QImage>
#include <QPainter>

#include <cmath>

namespace zorvane {

bool PlateOverlay::Fit(QSizeF area, qreal ratio) {
    const auto pixels = [ratio](qreal length) {
        return static_cast<Long>(std::ceil(length * ratio));
    };
    const Long width = pixels(area.width());
    const Long height = pixels(area.height());
    ratio_ = ratio;
    if (width == bitmap_.Width() && height == bitmap_.Height()) return false;
    bitmap_.Resize(width, height);
    return true;
}

bool PlateOverlay::Clear() {
    const bool any = bitmap_.Any();
    if (any) bitmap_.Clear();
    return any;
}

void PlateOverlay::Paint(QPainter& painter, const QRect& area, const QRect& clip) const {
    if (!bitmap_.Any()) return;
    QImage bits(bitmap_.Row(0), bitmap_.Width(), bitmap_.Height(),
                static_cast<qsizetype>(bitmap_.BytesPerRow()), QImage::Format_Mono);
    bits.setColorTable({qRgba(0, 0, 0, 0), qRgba(255, 255, 255, 255)});

    const QRect part = (clip & area).translated(-area.topLeft()) & bits.rect();
    const bool sameScale = std::abs(area.width() - bits.width()) <= 1;
    painter.save();
    // The difference from white is the inverse; from nothing, the pixel itself.
    painter.setCompositionMode(QPainter::CompositionMode_Difference);
    if (sameScale) {
        painter.drawImage(area.topLeft() + part.topLeft(),
                          bits.copy(part).convertToFormat(QImage::Format_ARGB32_Premultiplied));
    } else {
        painter.drawImage(area, bits.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    }
    painter.restore();
}

QRectF PlateOverlay::Shown(const Rect& pixels) const {
    return {double{pixels.left} / ratio_, double{pixels.top} / ratio_,
            double{pixels.width} / ratio_, double{pixels.height} / ratio_};
}

} // namespace zorvane
