#include "platecheck/WellOutline.h"

#include "model/WellStyle.h"

#include <algorithm>
#include <cmath>

namespace zorvane {

namespace {

WellOutline Outline(const WellDetails& subWell, Double rimX, Double rimY, bool round) {
    return {Double{subWell.xOffset()} + subWell.RimCenterX(),
            Double{subWell.yOffset()} + subWell.RimCenterY(), subWell.WellSizeX() / 2.0 + rimX,
            subWell.WellSizeY() / 2.0 + rimY, round};
}

Double DepthIntoRectangle(const WellOutline& circle, const WellOutline& rectangle) {
    const Double beyondX = std::abs(circle.x - rectangle.x) - rectangle.halfX;
    const Double beyondY = std::abs(circle.y - rectangle.y) - rectangle.halfY;
    const Double distance =
        beyondX > 0 && beyondY > 0 ? std::hypot(beyondX, beyondY) : std::max(beyondX, beyondY);
    return circle.Radius() - distance;
}

} // namespace

WellOutline BottomOutline(const WellDetails& subWell) {
    const WellStyle* const style = FindWellStyle(subWell.Style());
    return Outline(subWell, 0, 0, style && style->roundBottom);
}

WellOutline RimOutline(const WellDetails& subWell) {
    const WellStyle* const style = FindWellStyle(subWell.Style());
    return Outline(subWell, subWell.RimWidth(), subWell.RimHeight(), style && style->roundRim);
}

Double OverlapDepth(const WellOutline& a, const WellOutline& b) {
    if (a.round && b.round) return a.Radius() + b.Radius() - std::hypot(a.x - b.x, a.y - b.y);
    if (a.round) return DepthIntoRectangle(a, b);
    if (b.round) return DepthIntoRectangle(b, a);
    return std::min(a.halfX + b.halfX - std::abs(a.x - b.x),
                    a.halfY + b.halfY - std::abs(a.y - b.y));
}

bool Holds(const WellOutline& outer, const WellOutline& inner, Double excess) {
    const Double innerX = inner.round ? inner.Radius() : inner.halfX;
    const Double innerY = inner.round ? inner.Radius() : inner.halfY;
    const Double dx = std::abs(outer.x - inner.x);
    const Double dy = std::abs(outer.y - inner.y);
    if (!outer.round)
        return dx + innerX <= outer.halfX + excess && dy + innerY <= outer.halfY + excess;
    if (inner.round) return std::hypot(dx, dy) + inner.Radius() <= outer.Radius() + excess;
    return std::hypot(dx + innerX, dy + innerY) <= outer.Radius() + excess;
}

} // namespace zorvane
