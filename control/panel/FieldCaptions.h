#pragma once

#include "runtime/Types.h"

#include <string_view>

namespace zorvane {

/// What the details panel calls a recorded property, given its name without that of a sub-well.
String FieldCaption(std::string_view name);

} // namespace zorvane
