#pragma once

#include "platform/Registry.h"

#include <memory>

namespace zorvane {

/// The registry of a Qt program: one kept in files or, in a build without SQLite, one in memory
/// that forgets everything when the program ends.
std::unique_ptr<Registry> NewDesktopRegistry();

} // namespace zorvane
