#pragma once

#include "runtime/Export.h"
#include "runtime/RuntimeError.h"

#include <string_view>

namespace zorvane {

/// Shows a failure that the operator must see, with the number and description of the error;
/// `where` names the procedure that handles it.
ZORVANE_EXPORT void ShowError(const RuntimeError& error, std::string_view where);

} // namespace zorvane
