#pragma once

#include "apps/plate/Command.h"

#include <CLI/App.hpp>

#include <vector>

namespace zorvane {

/// The command line of the tool: all its commands, and what is made of their definitions, which are
/// help, a man page, completion and suggestions.
class CommandLine {
  public:
    CommandLine();

    /// Does what the arguments ask for. Raises RuntimeErrors with a description for the user.
    ExitCode Run(int argc, char** argv);

  private:
    ExitCode Help(const std::vector<std::string>& names) const;

    CLI::App app_;
    std::vector<Command> commands_;
};

} // namespace zorvane
