#pragma once

#include <CLI/App.hpp>

#include <string>
#include <vector>

namespace zorvane {

/// The commands of a command, in the order of its help.
std::vector<const CLI::App*> SubcommandsOf(const CLI::App& command);

/// The command of a command that has a name, or null.
const CLI::App* SubcommandNamed(const CLI::App& command, const std::string& name);

/// The command that a misspelt name most probably means; empty when there is none like it.
std::string SimilarCommand(const CLI::App& parent, const std::string& name);

} // namespace zorvane
