#include "hosts/qt/ShapeImages.h"

#include "hosts/qt/QtPalette.h"

#include <QPainter>

#include <algorithm>
#include <memory>

namespace zorvane {

namespace {

bool IsCurved(ShapeKind kind) { return kind != ShapeKind::Rectangle && kind != ShapeKind::Square; }

/// The part of the box that the shape fills: circles and squares are never stretched.
QRect Extent(ShapeKind kind, const QRect& box) {
    if (kind != ShapeKind::Circle && kind != ShapeKind::Square) return box;
    const int side = std::min(box.width(), box.height());
    return {box.x() + (box.width() - side) / 2, box.y() + (box.height() - side) / 2, side, side};
}

void PaintCurved(QPainter& painter, const ShapeStyle& style, const QRectF& extent) {
    // A pen is centred on its path: half a pixel further in, it covers the outermost pixels.
    const QRectF path = style.outlined ? extent.adjusted(0.5, 0.5, -0.5, -0.5) : extent;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(style.outlined ? QPen(Qt::black, 1) : QPen(Qt::NoPen));
    painter.setBrush(ToColor(style.fill));
    if (style.kind == ShapeKind::Rounded) {
        painter.drawRoundedRect(path, extent.width() / 8, extent.height() / 8);
    } else {
        painter.drawEllipse(path);
    }
    painter.restore();
}

} // namespace

void PaintShape(QPainter& painter, const ShapeStyle& style, const QRect& box) {
    const QRect extent = Extent(style.kind, box);
    if (IsCurved(style.kind)) {
        PaintCurved(painter, style, extent);
        return;
    }
    const int border = style.outlined ? 1 : 0;
    painter.fillRect(extent, Qt::black);
    painter.fillRect(extent.adjusted(border, border, -border, -border), ToColor(style.fill));
}

const QImage* ShapeImages::Find(const ShapeStyle& style, QSize size) {
    if (size.isEmpty() || std::max(size.width(), size.height()) > kLongestSide) return nullptr;
    const auto number = [](auto value) { return static_cast<quint32>(value); };
    const Key key{number(size.width()) << 16 | number(size.height()),
                  number(qRgba(style.fill.red, style.fill.green, style.fill.blue, 0)) |
                      number(style.kind) << 28 | number(style.outlined) << 24};
    if (const QImage* known = images_.object(key)) return known;

    auto image = std::make_unique<QImage>(size, QImage::Format_ARGB32_Premultiplied);
    image->fill(Qt::transparent);
    QPainter painter(image.get());
    PaintShape(painter, style, QRect(QPoint(), size));
    painter.end();
    const int bytes = static_cast<int>(image->sizeInBytes());
    const QImage* painted = image.get();
    // The cache deletes an image that is larger than all of it.
    return images_.insert(key, image.release(), bytes) ? painted : nullptr;
}

} // namespace zorvane
