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

void cmFocus::DragPosition(Single X, Single Y) {
    if (enabled_ && visible_) {
        DrawTracked(start_, end_);
        DrawTracked(start_, {X, Y});
    }
    end_ = {static_cast<Double>(ToLong(X)), static_cast<Double>(ToLong(Y))};
}

void cmFocus::DragStart(Single MouseDownX, Single MouseDownY) {
    if (enabled_ && visible_) {
        DrawTracked(start_, end_);
        DrawTracked({MouseDownX, MouseDownY}, end_);
    }
    start_ = {static_cast<Double>(ToLong(MouseDownX)), static_cast<Double>(ToLong(MouseDownY))};
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
    if (enabled_ && visible_) DrawTracked(start_, end_);
}

void cmFocus::RectangleVisible(Boolean value) {
    if (value != visible_ && enabled_) DrawTracked(start_, end_);
    visible_ = value;
}

void cmFocus::DrawEllipse(Single XLeft, Single YTop, Single XRight, Single YBottom) {
    drawing_.Ellipse(context_, PixelX(XLeft), PixelY(YTop), PixelX(XRight), PixelY(YBottom));
}

void cmFocus::DrawRectangle(Single XLeft, Single YTop, Single XRight, Single YBottom) {
    drawing_.Rectangle(context_, PixelX(XLeft), PixelY(YTop), PixelX(XRight), PixelY(YBottom));
}

void cmFocus::DrawTracked(Corner from, Corner to) {
    drawing_.Rectangle(context_, PixelX(from.x), PixelY(from.y), PixelX(to.x), PixelY(to.y));
}

Long cmFocus::PixelX(Double x) const { return ToPixel(x, pixelScaleX_); }

Long cmFocus::PixelY(Double y) const { return ToPixel(y, pixelScaleY_); }

} // namespace zorvane
