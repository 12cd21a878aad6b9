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

/// The findings of one library on standard output; whether none of them is an error.
bool Check(const String& library) {
    const std::vector<Finding> findings = CheckLibraryText(ReadFile(library), library);
    String report;
    for (const Finding& finding : findings)
        report += FindingText(finding);
    Print(report);
    return std::none_of(findings.begin(), findings.end(),
                        [](const Finding& finding) { return finding.severity == Severity::Error; });
}

/// Goes on with the next library when one cannot be read.
ExitCode Run(const std::vector<String>& libraries) {
    bool good = true;
    for (const String& library : libraries) {
        try {
            good = Check(library) && good;
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
    auto libraries = std::make_shared<std::vector<String>>();
    parser->add_option("libraries", *libraries, "Plate library files")->required();
    parser->footer("Errors are lines that end the search for plates or are not taken as written;\n"
                   "warnings are lines that probably do not mean what they say. The exit status is "
                   "1 when there\n"
                   "are errors, 0 when there are none.\n"
                   "Examples:\n"
                   "  plate check Plates.Dat\n"
                   "  vim -q <(plate check Plates.Dat)");
    return {parser, [libraries] { return Run(*libraries); }};
}

} // namespace zorvane
