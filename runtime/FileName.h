#pragma once

#include "runtime/Types.h"

#include <filesystem>

namespace zorvane {

/// The path of a file whose name is UTF-8, as file names are on every system here. A name that is
/// not valid UTF-8 is taken byte for byte.
std::filesystem::path PathOf(const String& name);

} // namespace zorvane
