#pragma once

#include "drawing/Canvas.h"
#include "hosts/qt/ShapeImages.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPoint>
#include <QRectF>

class QPainter;

namespace zorvane {

/// Paints a control with a QPainter. Every edge falls on a whole device pixel, outlines are one
/// device pixel wide and shapes of one size are copies of one image, whatever the painter's scale.
///
/// The painter's unit must be the device-independent pixel, its origin the control's top-left
/// corner; it may scale and move, not rotate. It is left as it was found when the canvas goes.
class QtCanvas final : public Canvas {
  public:
    /// Text is set in `font` at the size of the control's default font. `clip` is the area worth
    /// painting, in device-independent pixels.
    QtCanvas(QPainter& painter, ShapeImages& images, const QFont& font, const QRectF& clip);
    ~QtCanvas() override;
    QtCanvas(const QtCanvas&) = delete;
    QtCanvas& operator=(const QtCanvas&) = delete;

    Rect Clip() const override { return clip_; }
    void DrawShape(const ShapeStyle& style, const Rect& box) override;
    void FillRectangle(Rgb color, const Rect& box) override;
    void DrawRectangle(Rgb color, const Rect& box) override;
    void DrawText(const TextStyle& style, const Rect& box, std::string_view text) override;
    Single TextWidth(std::string_view text, Boolean bold) const override;
    void DrawInvertedOutline(const Rect& box) override;
    void BeginClip(const Rect& box) override;
    void EndClip() override;

    /// The device pixels that an area covers, both edges rounded. For painting beside the canvas:
    /// the painter's unit is the device pixel while the canvas lives.
    QRect DevicePixels(const Rect& box) const;

  private:
    struct Face {
        QFont font;
        QFontMetricsF metrics{font};
    };
    const Face& FaceFor(Boolean bold) const { return bold ? bold_ : plain_; }

    QPainter& painter_;
    ShapeImages& images_;
    Rect clip_;
    double scaleX_ = 1; // device pixels per drawing unit
    double scaleY_ = 1;
    Face plain_;
    Face bold_;
};

} // namespace zorvane
