#pragma once

#include "runtime/Types.h"

#include <algorithm>

namespace zorvane {

/// An axis-parallel rectangle; right and bottom edges are exclusive. Units are the user's (drawing
/// units on the control surface, device pixels in an overlay).
struct Rect {
    Single left = 0;
    Single top = 0;
    Single width = 0;
    Single height = 0;

    constexpr Single Right() const { return left + width; }
    constexpr Single Bottom() const { return top + height; }
    constexpr bool Empty() const { return !(width > 0 && height > 0); }

    constexpr bool Intersects(const Rect& other) const {
        return left < other.Right() && other.left < Right() && top < other.Bottom() &&
               other.top < Bottom();
    }
    constexpr Rect Moved(Single dx, Single dy) const {
        return {left + dx, top + dy, width, height};
    }
    constexpr Rect Grown(Single by) const {
        return {left - by, top - by, width + 2 * by, height + 2 * by};
    }

    friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

/// The smallest rectangle that holds both; an empty one counts for nothing.
constexpr Rect Union(const Rect& a, const Rect& b) {
    if (a.Empty()) return b;
    if (b.Empty()) return a;
    const Single left = std::min(a.left, b.left);
    const Single top = std::min(a.top, b.top);
    return {left, top, std::max(a.Right(), b.Right()) - left,
            std::max(a.Bottom(), b.Bottom()) - top};
}

} // namespace zorvane
