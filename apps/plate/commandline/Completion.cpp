#include "apps/plate/commandline/Completion.h"

#include "apps/plate/commandline/Subcommands.h"

#include <algorithm>
#include <set>
#include <sstream>
#include <vector>

namespace zorvane {

namespace {

String CommandWords(const CLI::App& command) {
    String words;
    for (const CLI::App* const each : SubcommandsOf(command))
        words += (words.empty() ? "" : " ") + each->get_name();
    return words;
}

void AddOptions(const CLI::App& command, std::set<String>& options) {
    for (const CLI::Option* const option : command.get_options()) {
        std::istringstream names(option->nonpositional() ? option->get_name(false, true) : "");
        for (String name; std::getline(names, name, ',');)
            if (name.starts_with('-')) options.insert(name);
    }
}

/// The options of a command and of those below it.
String OptionWords(const CLI::App& command, const std::vector<const CLI::App*>& below) {
    std::set<String> options;
    AddOptions(command, options);
    for (const CLI::App* const each : below)
        AddOptions(*each, options);
    String words;
    for (const String& option : options)
        words += (words.empty() ? "" : " ") + option;
    return words;
}

/// A second argument that is the name of a plate in the library before it.
bool TakesAPlate(const CLI::App& command) {
    const auto options = command.get_options();
    return std::any_of(options.begin(), options.end(),
                       [](const CLI::Option* option) { return option->get_name(true) == "plate"; });
}

String CaseOf(const CLI::App& command) {
    String text = "    " + command.get_name() + ")\n        options='" +
                  OptionWords(command, SubcommandsOf(command)) + "'\n";
    const String commands = CommandWords(command);
    if (!commands.empty()) text += "        ((COMP_CWORD == 2)) && words='" + commands + "'\n";
    if (TakesAPlate(command)) {
        text += "        ((COMP_CWORD == 3)) && words=$(plate list \"${COMP_WORDS[2]}\" --csv "
                "2>/dev/null |\n            sed '1d; s/,.*//')\n";
    }
    return text + "        ;;\n";
}

} // namespace

String BashCompletion(const CLI::App& app) {
    String text = "# Completion of plate for bash.\n"
                  "_plate() {\n"
                  "    local current=${COMP_WORDS[COMP_CWORD]} words= options=\n"
                  "    case ${COMP_WORDS[1]} in\n";
    for (const CLI::App* const command : SubcommandsOf(app))
        text += CaseOf(*command);
    return text +
           "    esac\n"
           "    if ((COMP_CWORD == 1)); then\n"
           "        words='" +
           CommandWords(app) + "' options='" + OptionWords(app, {}) +
           "'\n"
           "    fi\n"
           "    [[ $current == -* ]] && words=$options\n"
           "    COMPREPLY=($(compgen -W \"$words\" -- \"$current\"))\n"
           "}\n"
           "# Where nothing is offered, names of files are.\n"
           "complete -o default -F _plate plate\n";
}

} // namespace zorvane
