#include "control/cmFocus.h"

#include "platform/Process.h"
#include "runtime/Rounding.h"
#include "runtime/RuntimeError.h"

namespace zorvane {

namespace {

constexpr Long kBlack = 0;

Long ToPixel(Double logical, Single scale) {
    if (scale == 0) Raise(ErrorNumber::DivisionByZero);
    return ToLong(logical / scale);
}

} // namespace

cmFocus::cmFocus(HostSite& site) : drawing_(site.Drawing()) {}

cmFocus::~cmFocus() {
    if (outlinePen_ != 0) drawing_.DeleteObject(outlinePen_);
    if (context_ != 0) drawing_.ReleaseDC(window_, context_);
}

void cmFocus::DragPosition(Single X, Single Y) { MoveTracked(start_, {ToLong(X), ToLong(Y)}); }

void cmFocus::DragStart(Single MouseDownX, Single MouseDownY) {
    MoveTracked({ToLong(MouseDownX), ToLong(MouseDownY)}, end_);
}

void cmFocus::Enabled(Boolean value) {
    if (value && !enabled_) {
        const Screen& screen = CurrentProcess().TheScreen();
        pixelScaleX_ = screen.TwipsPerPixelX();
        pixelScaleY_ = screen.TwipsPerPixelY();
        context_ = drawing_.GetDC(window_);
        previousPen_ = drawing_.GetCurrentObject(context_, kPenObject);
        drawing_.SelectObject(context_, outlinePen_);
        drawing_.SetROP2(context_, kNotXorPenMode);
    } else if (!value && enabled_ && context_ != 0) {
        drawing_.ReleaseDC(window_, context_);
        context_ = 0;
    }
    enabled_ = value;
}

void cmFocus::hwnd(Long handle) {
    if (handle != 0 && outlinePen_ == 0) {
        outlinePen_ = drawing_.CreatePen(kDottedPen, 1, kBlack);
    } else if (handle == 0 && outlinePen_ != 0) {
        drawing_.DeleteObject(outlinePen_);
        outlinePen_ = 0;
    }
    window_ = handle;
}

void cmFocus::Refresh() {
    if (enabled_ && visible_) DrawTracked();
}

void cmFocus::RectangleVisible(Boolean value) {
    if (value != visible_ && enabled_) DrawTracked();
    visible_ = value;
}

void cmFocus::DrawEllipse(Single XLeft, Single YTop, Single XRight, Single YBottom) {
    drawing_.Ellipse(context_, PixelX(XLeft), PixelY(YTop), PixelX(XRight), PixelY(YBottom));
}

void cmFocus::DrawRectangle(Single XLeft, Single YTop, Single XRight, Single YBottom) {
    drawing_.Rectangle(context_, PixelX(XLeft), PixelY(YTop), PixelX(XRight), PixelY(YBottom));
}

// What is drawn has the corners that are kept, rounded: drawn from others, it could be a pixel off
// when it is erased.
void cmFocus::MoveTracked(Corner start, Corner end) {
    const Boolean shown = enabled_ && visible_;
    if (shown) DrawTracked();
    start_ = start;
    end_ = end;
    if (shown) DrawTracked();
}

void cmFocus::DrawTracked() {
    drawing_.Rectangle(context_, PixelX(start_.x), PixelY(start_.y), PixelX(end_.x),
                       PixelY(end_.y));
}

Long cmFocus::PixelX(Double x) const { return ToPixel(x, pixelScaleX_); }

Long cmFocus::PixelY(Double y) const { return ToPixel(y, pixelScaleY_); }

} // namespace zorvane
