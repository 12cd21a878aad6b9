#pragma once

#include "model/cmPlate.h"

namespace zorvane {

/// What would be different if a plate were read back from its own text: the first value that comes
/// back as another one, as in `"Xoffset 1.00" in "Well Drop" as "Xoffset 0.00"`. Empty when none
/// does; comments may grow.
String ValueNotReadBack(cmPlate& plate);

/// The first line of a definition that a control could not give back once it has been given the
/// definition as text; empty when it gives back all of them. Comments may change.
String LineNotReadBack(const String& definition);

} // namespace zorvane
