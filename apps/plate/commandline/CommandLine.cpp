#include "apps/plate/commandline/CommandLine.h"

#include "apps/plate/Files.h"
#include "apps/plate/commandline/Completion.h"
#include "apps/plate/commandline/ManPage.h"
#include "apps/plate/commandline/Subcommands.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <iostream>
#include <memory>

namespace zorvane {

namespace {

ExitCode SayNoSuchCommand(const CLI::App& parent, const std::string& name) {
    std::cerr << "plate: there is no command \"" << name << "\"";
    const std::string similar = SimilarCommand(parent, name);
    if (!similar.empty()) std::cerr << "; did you mean \"" << similar << "\"?";
    std::cerr << "\n";
    return kWrongUsage;
}

/// The first of the arguments that should be a command and is none, and null when there is none;
/// `parent` becomes the last command before it.
const char* UnknownCommand(const CLI::App*& parent, int argc, char** argv) {
    for (int at = 1; at < argc && argv[at][0] != '-'; ++at) {
        if (SubcommandsOf(*parent).empty()) return nullptr;
        const CLI::App* const next = SubcommandNamed(*parent, argv[at]);
        if (!next) return argv[at];
        parent = next;
    }
    return nullptr;
}

} // namespace

CommandLine::CommandLine() : app_("Reads, checks, draws and changes plate libraries", "plate") {
    app_.set_version_flag("--version", "plate " PLATE_VERSION);
    app_.require_subcommand(1);
    app_.footer(
        "\"plate help COMMAND\" says more about a command. Wherever a file is read, \"-\" is\n"
        "standard input. The exit status is 0 when all went well, 1 when something failed and\n"
        "2 when the command line is wrong.\n"
        "Environment:\n"
        "  ZORVANE_REGISTRY  a file for the registry, in place of those of the user and of\n"
        "                    the machine");
    commands_ = {MakeListCommand(app_),  MakeTextCommand(app_),     MakeDrawCommand(app_),
                 MakeWellsCommand(app_), MakeCheckCommand(app_),    MakeEditCommand(app_),
                 MakePairsCommand(app_), MakeRegistryCommand(app_), MakeImportCommand(app_),
                 MakeExportCommand(app_)};
    auto* const help = app_.add_subcommand("help", "Explain a command");
    const auto names = std::make_shared<std::vector<std::string>>();
    help->add_option("command", *names, "The command, and one of its own commands if it has any");
    commands_.push_back({help, [this, names] { return Help(*names); }});
}

ExitCode CommandLine::Help(const std::vector<std::string>& names) const {
    const CLI::App* command = &app_;
    std::string path = app_.get_name();
    for (const std::string& name : names) {
        const CLI::App* const next = SubcommandNamed(*command, name);
        if (!next) return SayNoSuchCommand(*command, name);
        command = next;
        path += " " + command->get_name();
    }
    // The program's own help would be that of the command which is running: "help".
    Print(command->get_formatter()->make_help(command, path, CLI::AppFormatMode::Normal));
    return kDone;
}

ExitCode CommandLine::Run(int argc, char** argv) {
    const CLI::App* parent = &app_;
    if (const char* const unknown = UnknownCommand(parent, argc, argv))
        return SayNoSuchCommand(*parent, unknown);
    // For installing the tool: no options that a user would look for.
    const std::string first = argc == 2 ? argv[1] : "";
    if (first == "--man" || first == "--completion") {
        Print(first == "--man" ? ManPage(app_) : BashCompletion(app_));
        return kDone;
    }
    try {
        app_.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        // Help and version come this way too, as success.
        return app_.exit(error) == 0 ? kDone : kWrongUsage;
    }
    for (const Command& command : commands_)
        if (command.options->parsed()) return command.run();
    return kFailed;
}

} // namespace zorvane
