#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

#include <array>
#include <cstdint>

/// Which pixels the outline of a figure covers, and in which order. Everything is counted in 64
/// bits, so that figures with any 32-bit corners come out without overflow.
namespace zorvane {

/// Whether a dotted pen draws the pixel at this place along a figure: three on, three off.
constexpr bool IsInDash(std::int64_t place) { return place % 6 < 3; }

/// A box of pixels; the right and bottom edges are exclusive.
struct PixelBox {
    std::int64_t left = 0;
    std::int64_t top = 0;
    std::int64_t right = 0;
    std::int64_t bottom = 0;

    /// The box between two opposite corners, given in any order.
    static PixelBox Between(Long x1, Long y1, Long x2, Long y2);

    std::int64_t Width() const { return right - left; }
    std::int64_t Height() const { return bottom - top; }
    bool Empty() const { return Width() <= 0 || Height() <= 0; }
    PixelBox Intersected(const PixelBox& other) const;
};

/// A straight run of pixels: from (x, y) on by (dx, dy), one of them 0 and the other 1 or -1.
struct PixelRun {
    std::int64_t x;
    std::int64_t y;
    int dx;
    int dy;
    std::int64_t length;
    std::int64_t place; ///< of the first pixel along the figure

    PixelBox Box() const;
    /// The part of the run inside of a box; its pixels keep their places.
    PixelRun Clipped(const PixelBox& box) const;
};

/// The outline of a box that is not empty, clockwise from its left top corner. Together the runs
/// hold each pixel once; some are empty when the box is one pixel wide or high.
ZORVANE_EXPORT std::array<PixelRun, 4> RectangleRuns(const PixelBox& box);

/// The outline of the ellipse that fills a box that is not empty: its pixels are those of the
/// filled ellipse that touch the outside with one of their sides.
class ZORVANE_EXPORT EllipseOutline {
  public:
    explicit EllipseOutline(const PixelBox& box);

    /// The two runs, from left to right, that the outline covers in a row of the box. The second
    /// one is empty where they meet.
    std::array<PixelRun, 2> RowRuns(std::int64_t y) const;
    /// How many pixels a pixel of the outline lies away from the top or bottom along it.
    std::int64_t PlaceOf(std::int64_t x, std::int64_t y) const;

  private:
    /// How many pixels the filled ellipse leaves out at either end of the row whose middle lies
    /// this far from the centre; all up to the middle beyond the ellipse.
    std::int64_t Inset(double fromCentre) const;

    PixelBox box_;
    double radiusX_;
    double radiusY_;
    // Where the outline turns from rather level to rather upright, from the centre.
    double turnX_;
    double turnY_;
};

} // namespace zorvane
