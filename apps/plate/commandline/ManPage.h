#pragma once

#include "runtime/Types.h"

#include <CLI/App.hpp>

namespace zorvane {

/// The page plate(1) for the man command, with all commands.
String ManPage(const CLI::App& app);

} // namespace zorvane
