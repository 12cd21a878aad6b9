#pragma once

#include "runtime/Types.h"

#include <CLI/App.hpp>

namespace zorvane {

/// A script that makes bash complete commands, options and, from the library given before, names of
/// plates.
String BashCompletion(const CLI::App& app);

} // namespace zorvane
