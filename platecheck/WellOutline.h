#pragma once

#include "model/WellDetails.h"

namespace zorvane {

/// A well seen from above, in mm: a rectangle, or a circle of the lesser half extent.
struct WellOutline {
    Double x = 0; ///< the centre
    Double y = 0;
    Double halfX = 0;
    Double halfY = 0;
    bool round = false;

    Double Radius() const { return halfX < halfY ? halfX : halfY; }
    WellOutline Moved(Double dx, Double dy) const { return {x + dx, y + dy, halfX, halfY, round}; }
};

/// The bottom of a sub-well at the first position, and the outer edge of its rim.
WellOutline BottomOutline(const WellDetails& subWell);
WellOutline RimOutline(const WellDetails& subWell);

/// How far two outlines reach into each other; 0 or less when they are apart.
Double OverlapDepth(const WellOutline& a, const WellOutline& b);

/// True when the inner outline stays inside of the outer one, up to a small excess.
bool Holds(const WellOutline& outer, const WellOutline& inner, Double excess);

} // namespace zorvane
