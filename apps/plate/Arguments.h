#pragma once

#include "runtime/Types.h"

#include <CLI/App.hpp>

namespace zorvane {

/// Adds the argument that names the library that a command reads.
void AddLibraryArgument(CLI::App& command, String& library);

/// Adds the argument that names a plate of that library.
void AddPlateArgument(CLI::App& command, String& plate);

} // namespace zorvane
