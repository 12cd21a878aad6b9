#pragma once

#include "runtime/Types.h"

namespace zorvane {

/// The nearest whole number, halves going to the even neighbour.
Double RoundHalfEven(Double value);

/// RoundHalfEven as a 16-bit number; error 6 when the result (or a NaN) does not fit.
Integer ToInteger(Double value);

/// RoundHalfEven as a 32-bit number; error 6 when the result (or a NaN) does not fit.
Long ToLong(Double value);

/// The nearest Single; error 6 when the value is too large for one, infinite or not a number.
Single ToSingle(Double value);

} // namespace zorvane
