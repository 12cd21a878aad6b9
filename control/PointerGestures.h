#pragma once

#include "control/ControlParts.h"
#include "runtime/Types.h"

/// What the operator does with pointer and keys on the plate area: the rubber-band selection of an
/// area, the drag of the selected wells, the arrow keys. X and Y are drawing units in the plate
/// area.
namespace zorvane {

void PressOnPlate(ControlParts parts, Integer button, Integer shift, Single x, Single y);
void MoveOverPlate(ControlParts parts, Integer buttons, Single x, Single y);
/// Error 11 while a pitch is 0. The gesture is over even when a step fails.
void ReleaseOnPlate(ControlParts parts, Integer button, Integer shift, Single x, Single y);

void PressKey(ControlParts parts, Integer keyCode, Integer shift);
void ReleaseKey(ControlParts parts, Integer shift);
/// Moves the current well when the code is that of an arrow key; never wraps.
void MoveByArrow(PlateState& state, Integer code);

} // namespace zorvane
