#pragma once

#include "control/Surface.h"
#include "model/WellDetails.h"
#include "runtime/Types.h"

namespace zorvane {

/// What turns millimetres into drawing units for one layout.
struct DrawingScales {
    Single scale = 0; ///< drawing units per millimetre
    Single pixelWidth = 0;
    Single pixelHeight = 0;
    Single labelHeight = 0; ///< one line of text
    Single columnPitch = 0; ///< mm
    Single rowPitch = 0;    ///< mm
};

/// The shapes of a sub-well's rim and bottom.
struct SubWellShapes {
    ShapeKind rim = ShapeKind::Rectangle;
    ShapeKind bottom = ShapeKind::Rectangle;
};

/// How the wells of one sub-well are drawn, in drawing units: worked out once a layout, then
/// applied to every well position.
struct SubWellDrawing {
    SubWellShapes shapes;
    Integer wellHalfSize = 0;
    Integer wellSize = 0;
    Integer rimHalfWidth = 0;
    Integer rimWidth = 0;
    Integer rimHalfHeight = 0;
    Integer rimHeight = 0;
    Boolean bottomBorder = true;
    Boolean textShown = false;
    Integer textWidth = 0;
    Integer textHeight = 0;
    Integer originX = 0; ///< centre of the well at row 0, column 0
    Integer originY = 0;
    Integer columnPitch = 0;
    Integer rowPitch = 0;
};

/// The shapes of a style code; a code without shapes of its own keeps those of the sub-well before.
SubWellShapes ShapesOfStyle(Long style, SubWellShapes before);

/// Error 6 when a size or position does not fit 16 bits.
SubWellDrawing DrawSubWell(const WellDetails& well, const DrawingScales& scales,
                           SubWellShapes shapesBefore);

} // namespace zorvane
