#pragma once

#include "model/cmPlate.h"

#include <optional>
#include <vector>

namespace zorvane::python {

/// The names of all wells in the order of their numbers.
std::vector<String> WellNamesOf(const cmPlate& plate);
/// The name of a well; error 9 for a number that is no well.
String WellNameOf(const cmPlate& plate, Long number);
/// The number of the well with a name; error 9 when there is none.
Integer WellNumberOf(const cmPlate& plate, const String& name);

} // namespace zorvane::python
