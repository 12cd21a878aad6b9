#pragma once

#include <CLI/App.hpp>

#include <functional>

namespace zorvane {

enum ExitCode : int { kDone = 0, kFailed = 1, kWrongUsage = 2 };

/// A subcommand: its part of the command line, and what it does once that has been read. Running
/// it raises RuntimeErrors with a description for the user.
struct Command {
    CLI::App* options;
    std::function<ExitCode()> run;
};

Command MakeListCommand(CLI::App& app);
Command MakeTextCommand(CLI::App& app);
Command MakeDrawCommand(CLI::App& app);
Command MakeWellsCommand(CLI::App& app);
Command MakeCheckCommand(CLI::App& app);
Command MakeEditCommand(CLI::App& app);
Command MakePairsCommand(CLI::App& app);
Command MakeRegistryCommand(CLI::App& app);
Command MakeImportCommand(CLI::App& app);
Command MakeExportCommand(CLI::App& app);

} // namespace zorvane
