#include "platform/InvertingOverlay.h"

#include <algorithm>

namespace zorvane {

namespace {

bool IsDrawn(std::int64_t place, bool dotted) { return !dotted || IsInDash(place); }

} // namespace

void InvertingOverlay::Resize(Long width, Long height) {
    width_ = std::max<Long>(width, 0);
    height_ = std::max<Long>(height, 0);
    bytesPerRow_ = (static_cast<std::size_t>(width_) + 31) / 32 * 4;
    bits_.resize(bytesPerRow_ * static_cast<std::size_t>(height_));
    Clear();
}

void InvertingOverlay::Clear() {
    std::fill(bits_.begin(), bits_.end(), std::uint8_t{0});
    inverted_ = 0;
}

bool InvertingOverlay::IsInverted(Long x, Long y) const {
    if (x < 0 || x >= width_ || y < 0 || y >= height_) return false;
    return (Row(y)[x / 8] & 0x80 >> x % 8) != 0;
}

const std::uint8_t* InvertingOverlay::Row(Long y) const {
    return bits_.data() + static_cast<std::size_t>(y) * bytesPerRow_;
}

DrawingContext::Handle InvertingOverlay::GetDC(Handle window) {
    if (window == 0) return 0;
    contexts_[++lastHandle_] = {};
    return lastHandle_;
}

void InvertingOverlay::ReleaseDC(Handle /*window*/, Handle context) { contexts_.erase(context); }

DrawingContext::Handle InvertingOverlay::GetCurrentObject(Handle context, Long kind) {
    const auto found = contexts_.find(context);
    return found != contexts_.end() && kind == kPenObject ? found->second.pen : 0;
}

DrawingContext::Handle InvertingOverlay::SelectObject(Handle context, Handle object) {
    const auto found = contexts_.find(context);
    const auto pen = pens_.find(object);
    if (found == contexts_.end() || pen == pens_.end()) return 0;
    const Handle before = found->second.pen;
    found->second.pen = object;
    found->second.dotted = pen->second == kDottedPen;
    return before;
}

DrawingContext::Handle InvertingOverlay::CreatePen(Long style, Long /*width*/, Long /*color*/) {
    pens_[++lastHandle_] = style;
    return lastHandle_;
}

void InvertingOverlay::DeleteObject(Handle object) {
    if (object != kStockPen) pens_.erase(object);
}

void InvertingOverlay::SetROP2(Handle context, Long mode) {
    const auto found = contexts_.find(context);
    if (found != contexts_.end()) found->second.mode = mode;
}

void InvertingOverlay::Rectangle(Handle context, Long left, Long top, Long right, Long bottom) {
    const PixelBox box = PixelBox::Between(left, top, right, bottom);
    const Context* const drawing = Inverting(context);
    if (!drawing || box.Empty()) return;
    const bool dotted = drawing->dotted;
    for (const PixelRun& edge : RectangleRuns(box)) {
        const PixelRun seen = edge.Clipped(Bounds());
        for (std::int64_t i = 0; i < seen.length; ++i)
            if (IsDrawn(seen.place + i, dotted)) Toggle(seen.x + i * seen.dx, seen.y + i * seen.dy);
        Report(seen.Box());
    }
}

void InvertingOverlay::Ellipse(Handle context, Long left, Long top, Long right, Long bottom) {
    const PixelBox box = PixelBox::Between(left, top, right, bottom);
    const Context* const drawing = Inverting(context);
    if (!drawing || box.Empty()) return;
    const bool dotted = drawing->dotted;
    const EllipseOutline outline(box);
    const PixelBox seen = box.Intersected(Bounds());
    for (std::int64_t y = seen.top; y < seen.bottom; ++y) {
        for (const PixelRun& run : outline.RowRuns(y)) {
            const PixelBox pixels = run.Box().Intersected(Bounds());
            for (std::int64_t x = pixels.left; x < pixels.right; ++x)
                if (IsDrawn(outline.PlaceOf(x, y), dotted)) Toggle(x, y);
        }
    }
    Report(seen);
}

const InvertingOverlay::Context* InvertingOverlay::Inverting(Handle context) const {
    const auto found = contexts_.find(context);
    const bool inverting = found != contexts_.end() && found->second.mode == kNotXorPenMode;
    return inverting ? &found->second : nullptr;
}

void InvertingOverlay::Toggle(std::int64_t x, std::int64_t y) {
    const auto mask = static_cast<std::uint8_t>(0x80 >> x % 8);
    std::uint8_t& byte =
        bits_[static_cast<std::size_t>(y) * bytesPerRow_ + static_cast<std::size_t>(x / 8)];
    byte ^= mask;
    inverted_ += (byte & mask) != 0 ? 1 : -1;
}

void InvertingOverlay::Report(const PixelBox& touched) const {
    if (!onChange || touched.Empty()) return;
    onChange({static_cast<Single>(touched.left), static_cast<Single>(touched.top),
              static_cast<Single>(touched.Width()), static_cast<Single>(touched.Height())});
}

} // namespace zorvane
