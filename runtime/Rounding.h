#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

namespace zorvane {

/// The nearest whole number, halves going to the even neighbour.
ZORVANE_EXPORT Double RoundHalfEven(Double value);

/// RoundHalfEven as a 16-bit number; error 6 when the result (or a NaN) does not fit.
ZORVANE_EXPORT Integer ToInteger(Double value);

/// RoundHalfEven as a 32-bit number; error 6 when the result (or a NaN) does not fit.
ZORVANE_EXPORT Long ToLong(Double value);

/// The nearest Single; error 6 when the value is too large for one, infinite or not a number.
ZORVANE_EXPORT Single ToSingle(Double value);

} // namespace zorvane
