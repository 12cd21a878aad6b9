#pragma once

#include "runtime/Types.h"

namespace zorvane::python {

/// The number that a Single is written as: 18.38 and not 18.3799991607666, so that arrays hold what
/// definitions and tables say.
double Decimal(Single value);

} // namespace zorvane::python
