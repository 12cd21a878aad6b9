#pragma once

#include "drawing/PlatePicture.h"
#include "runtime/Export.h"

#include <QImage>

namespace zorvane {

/// The picture of a plate as an image, in the program's font and the colours of an SVG picture. A
/// device pixel ratio of 2 gives twice as many pixels a side. Needs a QGuiApplication; fails as the
/// constructor of PlatePicture does.
ZORVANE_EXPORT QImage DrawPlateImage(const PictureRequest& request, qreal devicePixelRatio = 1);

} // namespace zorvane
