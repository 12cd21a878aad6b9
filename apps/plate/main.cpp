#include "apps/plate/Command.h"
#include "apps/plate/Interruption.h"
#include "apps/plate/ToolProcess.h"
#include "runtime/RuntimeError.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <exception>
#include <iostream>

namespace {

using namespace zorvane;

int RunChosen(const std::vector<Command>& commands) {
    for (const Command& command : commands)
        if (command.options->parsed()) return command.run();
    return kFailed;
}

int Main(int argc, char** argv) {
    CLI::App app("Reads, checks, draws and changes plate libraries", "plate");
    app.set_version_flag("--version", "plate " PLATE_VERSION);
    app.require_subcommand(1);
    app.footer("\"plate COMMAND --help\" says more about a command.");
    const std::vector<Command> commands{MakeListCommand(app),   MakeTextCommand(app),
                                        MakeDrawCommand(app),   MakeWellsCommand(app),
                                        MakeCheckCommand(app),  MakeEditCommand(app),
                                        MakePairsCommand(app),  MakeRegistryCommand(app),
                                        MakeImportCommand(app), MakeExportCommand(app)};
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        // Help and version come this way too, as success.
        return app.exit(error) == 0 ? kDone : kWrongUsage;
    }
    return RunChosen(commands);
}

} // namespace

int main(int argc, char** argv) {
    RemoveTemporariesOnSignals();
    ToolProcess process;
    const InstalledProcess installed(process);
    try {
        return Main(argc, argv);
    } catch (const RuntimeError& error) {
        std::cerr << "plate: " << PrintableUtf8(error.Description()) << "\n";
    } catch (const std::exception& error) {
        std::cerr << "plate: " << error.what() << "\n";
    }
    return kFailed;
}
