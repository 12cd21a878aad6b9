#include "apps/plate/Command.h"
#include "apps/plate/Files.h"
#include "platecheck/LibraryCheck.h"
#include "runtime/Text.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <vector>

namespace zorvane {

namespace {

struct Options {
    std::vector<String> libraries;
    Standards standards = Standards::None;
};

/// The findings of one library on standard output; whether none of them is an error.
bool Check(const String& library, Standards standards) {
    const std::vector<Finding> findings = CheckLibraryText(ReadFile(library), library, standards);
    String report;
    for (const Finding& finding : findings)
        report += FindingText(finding);
    Print(report);
    return std::none_of(findings.begin(), findings.end(),
                        [](const Finding& finding) { return finding.severity == Severity::Error; });
}

/// Goes on with the next library when one cannot be read.
ExitCode Run(const Options& options) {
    bool good = true;
    for (const String& library : options.libraries) {
        try {
            good = Check(library, options.standards) && good;
        } catch (const RuntimeError& error) {
            std::cerr << "plate: " << PrintableUtf8(error.Description()) << "\n";
            good = false;
        }
    }
    return good ? kDone : kFailed;
}

} // namespace

Command MakeCheckCommand(CLI::App& app) {
    auto* const parser =
        app.add_subcommand("check", "Report what is wrong with plate libraries, line by line");
    auto options = std::make_shared<Options>();
    parser->add_option("libraries", options->libraries, "Plate library files")->required();
    parser->add_flag_callback(
        "--slas", [&standards = options->standards] { standards = Standards::Slas; },
        "Also warn where plates leave the ANSI SLAS standards of microplates");
    parser->footer("Errors are lines that end the search for plates or are not taken as written;\n"
                   "warnings are lines that probably do not mean what they say. The exit status is "
                   "1 when there\n"
                   "are errors, 0 when there are none.\n"
                   "Examples:\n"
                   "  plate check Plates.Dat\n"
                   "  vim -q <(plate check Plates.Dat)");
    return {parser, [options] { return Run(*options); }};
}

} // namespace zorvane
