#include "platform/Outline.h"

#include <algorithm>
#include <cmath>

namespace zorvane {

PixelBox PixelBox::Between(Long x1, Long y1, Long x2, Long y2) {
    return {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)};
}

PixelBox PixelBox::Intersected(const PixelBox& other) const {
    return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
            std::min(bottom, other.bottom)};
}

PixelBox PixelRun::Box() const {
    if (length <= 0) return {};
    const std::int64_t lastX = x + dx * (length - 1);
    const std::int64_t lastY = y + dy * (length - 1);
    return {std::min(x, lastX), std::min(y, lastY), std::max(x, lastX) + 1, std::max(y, lastY) + 1};
}

PixelRun PixelRun::Clipped(const PixelBox& box) const {
    const PixelBox inside = Box().Intersected(box);
    if (inside.Empty()) return {x, y, dx, dy, 0, place};
    PixelRun clipped = *this;
    clipped.x = dx < 0 ? inside.right - 1 : inside.left;
    clipped.y = dy < 0 ? inside.bottom - 1 : inside.top;
    clipped.length = std::max(inside.Width(), inside.Height());
    clipped.place = place + std::abs(clipped.x - x) + std::abs(clipped.y - y);
    return clipped;
}

std::array<PixelRun, 4> RectangleRuns(const PixelBox& box) {
    const std::int64_t width = box.Width();
    const std::int64_t height = box.Height();
    const std::int64_t bottomLength = height > 1 ? width - 1 : 0;
    const std::int64_t leftLength = width > 1 ? height - 2 : 0;
    return {{{box.left, box.top, 1, 0, width, 0},
             {box.right - 1, box.top + 1, 0, 1, height - 1, width},
             {box.right - 2, box.bottom - 1, -1, 0, bottomLength, width + height - 1},
             {box.left, box.bottom - 2, 0, -1, leftLength, 2 * width + height - 2}}};
}

EllipseOutline::EllipseOutline(const PixelBox& box)
    : box_(box), radiusX_(static_cast<double>(box.Width()) / 2),
      radiusY_(static_cast<double>(box.Height()) / 2) {
    const double diagonal = std::hypot(radiusX_, radiusY_);
    turnX_ = radiusX_ * (radiusX_ / diagonal);
    turnY_ = radiusY_ * (radiusY_ / diagonal);
}

std::array<PixelRun, 2> EllipseOutline::RowRuns(std::int64_t y) const {
    const double fromCentre = std::abs(static_cast<double>(y - box_.top) + 0.5 - radiusY_);
    const std::int64_t inset = Inset(fromCentre);
    // What the next row away from the centre covers is not outline here, except at its ends.
    const std::int64_t covered = std::max(inset + 1, Inset(fromCentre + 1));
    const std::int64_t leftEnd = box_.left + covered;
    const std::int64_t rightStart = std::max(box_.right - covered, leftEnd);
    const std::int64_t rightEnd = box_.right - inset;
    return {{{box_.left + inset, y, 1, 0, std::min(leftEnd, rightEnd) - box_.left - inset, 0},
             {rightStart, y, 1, 0, rightEnd - rightStart, 0}}};
}

std::int64_t EllipseOutline::PlaceOf(std::int64_t x, std::int64_t y) const {
    const double fromCentreX = std::abs(static_cast<double>(x - box_.left) + 0.5 - radiusX_);
    const double fromCentreY = std::abs(static_cast<double>(y - box_.top) + 0.5 - radiusY_);
    const bool level = fromCentreX <= turnX_;
    return static_cast<std::int64_t>(level ? fromCentreX : turnX_ + turnY_ - fromCentreY);
}

std::int64_t EllipseOutline::Inset(double fromCentre) const {
    const std::int64_t middle = (box_.Width() + 1) / 2;
    if (fromCentre >= radiusY_) return middle;
    // The innermost rows reach the sides of the box, however flat the ellipse is.
    if (fromCentre <= 0.5) return 0;
    // Factored, because squares of near values would lose the digits that matter.
    const double chord =
        radiusX_ * std::sqrt((radiusY_ - fromCentre) * (radiusY_ + fromCentre)) / radiusY_;
    const auto inset = static_cast<std::int64_t>(std::ceil(radiusX_ - chord - 0.5));
    return std::clamp<std::int64_t>(inset, 0, (box_.Width() - 1) / 2);
}

} // namespace zorvane
