#include "model/DropCentre.h"

#include "runtime/Rounding.h"

namespace zorvane {

Coordinate DropCentre(const cmPlate& plate, const WellDetails& subWell, Integer row, Integer col) {
    Coordinate centre;
    centre.X(ToSingle(Double{plate.XPitch()} * col + subWell.xOffset()));
    centre.Y(ToSingle(Double{plate.YPitch()} * row + subWell.yOffset()));
    centre.Z(ToSingle(Double{plate.Height()} - subWell.Depth()));
    return centre;
}

} // namespace zorvane
