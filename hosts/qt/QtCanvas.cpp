#include "hosts/qt/QtCanvas.h"

#include "hosts/qt/QtPalette.h"
#include "hosts/qt/Units.h"
#include "platform/Outline.h"

#include <QList>
#include <QPainter>

#include <algorithm>

namespace zorvane {

namespace {

QString ToText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QFont Sized(QFont font, double pixels, bool bold) {
    font.setPixelSize(std::max(1, qRound(pixels)));
    font.setBold(bold);
    return font;
}

/// The outermost pixels of a rectangle that a dotted pen draws.
QList<QPoint> DottedEdge(const QRect& box) {
    QList<QPoint> dots;
    const PixelBox pixels{box.left(), box.top(), box.left() + box.width(),
                          box.top() + box.height()};
    for (const PixelRun& run : RectangleRuns(pixels)) {
        for (std::int64_t i = 0; i < run.length; ++i) {
            if (!IsInDash(run.place + i)) continue;
            dots.append(
                {static_cast<int>(run.x + i * run.dx), static_cast<int>(run.y + i * run.dy)});
        }
    }
    return dots;
}

} // namespace

QtCanvas::QtCanvas(QPainter& painter, ShapeImages& images, const QFont& font, const QRectF& clip)
    : painter_(painter), images_(images), clip_(ToUnits(clip)) {
    painter_.save();
    const QTransform toDevice = painter_.deviceTransform();
    scaleX_ = toDevice.m11() / double{kUnitsPerPixel};
    scaleY_ = toDevice.m22() / double{kUnitsPerPixel};
    // From here the painter's unit is the device pixel, counted from a whole one.
    const QPointF origin = toDevice.map(QPointF(0, 0));
    const QPointF snapped(std::round(origin.x()), std::round(origin.y()));
    QTransform world = painter_.worldTransform();
    world.translate((snapped.x() - origin.x()) / toDevice.m11(),
                    (snapped.y() - origin.y()) / toDevice.m22());
    world.scale(1 / toDevice.m11(), 1 / toDevice.m22());
    painter_.setWorldTransform(world);
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, false);
    painter_.setLayoutDirection(Qt::LayoutDirectionAuto); // whatever the direction of the widget
    const double height = double{kFontHeight} * scaleY_;
    plain_ = {Sized(font, height, false)};
    bold_ = {Sized(font, height, true)};
}

QtCanvas::~QtCanvas() { painter_.restore(); }

QRect QtCanvas::DevicePixels(const Rect& box) const {
    const int left = qRound(double{box.left} * scaleX_);
    const int top = qRound(double{box.top} * scaleY_);
    const int right = qRound(double{box.Right()} * scaleX_);
    const int bottom = qRound(double{box.Bottom()} * scaleY_);
    return {left, top, right - left, bottom - top};
}

void QtCanvas::DrawShape(const ShapeStyle& style, const Rect& box) {
    // The size is rounded by itself: equal wells stay equal and share one image.
    const QPoint corner(qRound(double{box.left} * scaleX_), qRound(double{box.top} * scaleY_));
    const QSize size(qRound(double{box.width} * scaleX_), qRound(double{box.height} * scaleY_));
    if (const QImage* image = images_.Find(style, size)) {
        painter_.drawImage(corner, *image);
    } else if (!size.isEmpty()) {
        PaintShape(painter_, style, QRect(corner, size));
    }
}

void QtCanvas::FillRectangle(Rgb color, const Rect& box) {
    painter_.fillRect(DevicePixels(box), ToColor(color));
}

void QtCanvas::DrawRectangle(Rgb color, const Rect& box) {
    painter_.setPen(ToColor(color));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(DevicePixels(box).adjusted(0, 0, -1, -1));
}

void QtCanvas::DrawText(const TextStyle& style, const Rect& box, std::string_view text) {
    if (text.empty()) return;
    painter_.setFont(FaceFor(style.bold).font);
    painter_.setPen(ToColor(style.color));
    const Qt::Alignment across = style.align == TextAlign::Left ? Qt::AlignLeft | Qt::AlignAbsolute
                                                                : Qt::Alignment(Qt::AlignHCenter);
    const auto flags = (across | Qt::AlignVCenter).toInt() | Qt::TextSingleLine | Qt::TextDontClip;
    painter_.drawText(DevicePixels(box), static_cast<int>(flags), ToText(text));
}

Single QtCanvas::TextWidth(std::string_view text, Boolean bold) const {
    const double pixels = FaceFor(bold).metrics.horizontalAdvance(ToText(text));
    return static_cast<Single>(pixels / scaleX_);
}

void QtCanvas::DrawInvertedOutline(const Rect& box) {
    const QRect edge = DevicePixels(box);
    if (edge.isEmpty()) return;
    painter_.save();
    // The difference from white is the inverse.
    painter_.setCompositionMode(QPainter::CompositionMode_Difference);
    painter_.setPen(Qt::white);
    const QList<QPoint> dots = DottedEdge(edge);
    painter_.drawPoints(dots.constData(), static_cast<int>(dots.size()));
    painter_.restore();
}

void QtCanvas::BeginClip(const Rect& box) {
    painter_.save();
    painter_.setClipRect(DevicePixels(box), Qt::IntersectClip);
}

void QtCanvas::EndClip() { painter_.restore(); }

} // namespace zorvane
