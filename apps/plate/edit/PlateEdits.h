#pragma once

#include "model/cmPlate.h"

#include <functional>

namespace zorvane {

/// A change of a plate definition that was asked for on the command line. It raises a failure for
/// the user where the plate does not allow it; the plate is then of no further use.
using PlateEdit = std::function<void(cmPlate& plate)>;

// The changes, from the arguments of their options; an argument of the wrong form is a
// failure here already. Sub-wells are named in any letter case.

PlateEdit Rotation(const String& argument);
/// "X,Y,Z" in millimetres; a positive Z raises the bottoms of the sub-wells.
PlateEdit Shift(const String& distances);
/// "OLD=NEW".
PlateEdit Renaming(const String& names);
/// "A,B".
PlateEdit Exchange(const String& names);
PlateEdit Removal(const String& name);
/// "NEW=FROM": the new sub-well comes last and has the values of another one.
PlateEdit Addition(const String& names);

} // namespace zorvane
