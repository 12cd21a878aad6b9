#include "apps/plate/commandline/ManPage.h"

#include "apps/plate/commandline/Subcommands.h"

#include <sstream>

namespace zorvane {

namespace {

/// A text in which nothing is a command of the page's language.
String Escaped(std::string_view text) {
    String escaped;
    for (const char c : text) {
        if (c == '\\') {
            escaped += "\\e";
        } else {
            if (c == '-') escaped += '\\';
            escaped += c;
        }
    }
    if (escaped.starts_with('.') || escaped.starts_with('\'')) escaped.insert(0, "\\&");
    return escaped;
}

String OptionTerm(const CLI::Option& option) {
    String term;
    std::istringstream names(option.get_name(option.get_positional(), true));
    for (String name; std::getline(names, name, ',');) {
        if (name.starts_with("-") == option.get_positional()) continue;
        term += (term.empty() ? "" : ", ") + String("\\fB") + Escaped(name) + "\\fR";
    }
    const String type = option.get_type_name();
    if (!option.get_positional() && option.get_expected_max() > 0 && !type.empty())
        term += " \\fI" + Escaped(type) + "\\fR";
    return term;
}

String Options(const CLI::App& command) {
    String text;
    for (const CLI::Option* const option : command.get_options()) {
        if (!option->nonpositional() && !option->get_positional()) continue;
        text += ".TP\n" + OptionTerm(*option) + "\n" + Escaped(option->get_description()) + "\n";
    }
    return text;
}

/// The lines of a footer: flowing text, and examples and the like, which are indented and stay as
/// they are.
String Footer(const CLI::App& command) {
    String text;
    bool literal = false;
    std::istringstream lines(command.get_footer());
    for (String line; std::getline(lines, line);) {
        const bool indented = line.starts_with("  ");
        if (indented != literal) {
            text += indented ? ".RS 4\n.nf\n" : ".fi\n.RE\n";
        } else if (text.empty() || line.ends_with(':')) {
            text += ".PP\n";
        }
        literal = indented;
        text += Escaped(indented ? line.substr(2) : line) + "\n";
    }
    return literal ? text + ".fi\n.RE\n" : text;
}

String Synopsis(const CLI::App& command, const String& name) {
    String line = "\\fB" + name + "\\fR";
    if (!SubcommandsOf(command).empty()) line += " \\fICOMMAND\\fR";
    for (const CLI::Option* const option : command.get_options()) {
        if (!option->get_positional()) continue;
        const String argument = "\\fI" + Escaped(option->get_name(true)) + "\\fR" +
                                (option->get_expected_max() > 1 ? "..." : "");
        line += option->get_required() ? " " + argument : " [" + argument + "]";
    }
    return line + " [\\fIoptions\\fR]\n";
}

/// A command and those below it. One without a footer of its own has that of the program.
String CommandText(const CLI::App& app, const CLI::App& command, const String& parent) {
    const String name = parent + " " + command.get_name();
    String text = ".SS " + name + "\n" + Synopsis(command, name) + ".PP\n" +
                  Escaped(command.get_description()) + ".\n" + Options(command);
    if (command.get_footer() != app.get_footer()) text += Footer(command);
    for (const CLI::App* const each : SubcommandsOf(command))
        text += CommandText(app, *each, name);
    return text;
}

} // namespace

String ManPage(const CLI::App& app) {
    const String& name = app.get_name();
    String text = ".TH PLATE 1 \"\" \"Zorvane " PLATE_VERSION "\" \"User Commands\"\n.SH NAME\n" +
                  name + " \\- " + Escaped(app.get_description()) + "\n.SH SYNOPSIS\n" +
                  Synopsis(app, name) + ".SH DESCRIPTION\n" + Options(app) + Footer(app) +
                  ".SH COMMANDS\n";
    for (const CLI::App* const command : SubcommandsOf(app))
        text += CommandText(app, *command, name);
    return text;
}

} // namespace zorvane
