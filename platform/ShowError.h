#pragma once

#include "runtime/RuntimeError.h"

#include <string_view>

namespace zorvane {

/// Shows a failure that the operator must see, with the number and description of the error;
/// `where` names the procedure that handles it.
void ShowError(const RuntimeError& error, std::string_view where);

} // namespace zorvane
