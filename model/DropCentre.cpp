#include "model/DropCentre.h"

#include "runtime/Rounding.h"

namespace zorvane {

Coordinate DropCentre(const cmPlate& plate, const WellDetails& subWell, Integer row, Integer col) {
    Coordinate centre;
    const Double x = Double{subWell.xOffset()} + subWell.RimCenterX();
    const Double y = Double{subWell.yOffset()} + subWell.RimCenterY();
    centre.X(ToSingle(x + Double{plate.XPitch()} * col));
    centre.Y(ToSingle(y + Double{plate.YPitch()} * row));
    centre.Z(ToSingle(Double{plate.Height()} - subWell.Depth()));
    return centre;
}

} // namespace zorvane
