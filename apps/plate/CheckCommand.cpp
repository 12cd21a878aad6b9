#include "apps/plate/Command.h"
#include "apps/plate/Files.h"
#include "apps/plate/table/Table.h"
#include "platecheck/LibraryCheck.h"
#include "runtime/Text.h"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <memory>
#include <vector>

namespace zorvane {

namespace {

struct Options {
    std::vector<String> libraries;
    bool json = false;
    bool strict = false;
    Standards standards = Standards::None;
};

String FindingsJson(const std::vector<Finding>& findings) {
    Table table{{"file", "line", "column", "length", "severity", "message", "text"}, {}};
    for (const Finding& finding : findings) {
        table.rows.push_back({finding.file, finding.line, finding.column, finding.length,
                              SeverityText(finding.severity), finding.message, finding.lineText});
    }
    return TableText(table, TableForm::Json);
}

String FindingsText(const std::vector<Finding>& findings) {
    String text;
    for (const Finding& finding : findings)
        text += FindingText(finding);
    return text;
}

/// Goes on with the next library when one cannot be read; false then.
bool FindAll(const Options& options, std::vector<Finding>& findings) {
    bool read = true;
    for (const String& library : options.libraries) {
        try {
            std::vector<Finding> found = CheckLibraryText(ReadLibrary(library).Bytes(),
                                                          ShownName(library), options.standards);
            std::move(found.begin(), found.end(), std::back_inserter(findings));
        } catch (const RuntimeError& error) {
            std::cerr << "plate: " << PrintableUtf8(error.Description()) << "\n";
            read = false;
        }
    }
    return read;
}

ExitCode Run(const Options& options) {
    std::vector<Finding> findings;
    const bool read = FindAll(options, findings);
    Print(options.json ? FindingsJson(findings) : FindingsText(findings));
    const bool bad = std::any_of(findings.begin(), findings.end(), [&](const Finding& finding) {
        return options.strict || finding.severity == Severity::Error;
    });
    return read && !bad ? kDone : kFailed;
}

} // namespace

Command MakeCheckCommand(CLI::App& app) {
    auto* const parser =
        app.add_subcommand("check", "Report what is wrong with plate libraries, line by line");
    auto options = std::make_shared<Options>();
    parser
        ->add_option("libraries", options->libraries,
                     "Plate library files; \"-\" is standard input")
        ->required();
    parser->add_flag("--json", options->json, "Write a JSON array of objects");
    parser->add_flag("--strict", options->strict, "Warnings too make the exit status 1");
    parser->add_flag_callback(
        "--slas", [&standards = options->standards] { standards = Standards::Slas; },
        "Also warn where plates leave the ANSI SLAS standards of microplates");
    parser->footer("Errors are lines that end the search for plates or are not taken as written;\n"
                   "warnings are lines that probably do not mean what they say. The exit status is "
                   "1 when there\n"
                   "are errors, 0 when there are none.\n"
                   "Examples:\n"
                   "  plate check Plates.Dat\n"
                   "  plate check --json --strict *.Dat | jq -r '.[].message'\n"
                   "  vim -q <(plate check Plates.Dat)");
    return {parser, [options] { return Run(*options); }};
}

} // namespace zorvane
