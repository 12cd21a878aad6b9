#pragma once

#include "apps/plate/draw/ShownWellData.h"
#include "control/Plate.h"

namespace zorvane {

/// An SVG picture of what a control shows, without the button that nobody can press in it. `width`
/// and `height` are drawing units; with data the key takes the lower end of that height.
String PlatePicture(const Plate& plate, Single width, Single height, const ShownWellData* data);

} // namespace zorvane
