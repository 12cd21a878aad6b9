#include "apps/plate/Arguments.h"
#include "apps/plate/Command.h"
#include "apps/plate/Files.h"
#include "apps/plate/table/Table.h"
#include "platetext/LibraryIndex.h"
#include "runtime/Text.h"

#include <iostream>
#include <memory>

namespace zorvane {

namespace {

struct Options {
    String plateLibrary;
    TableForm form = TableForm::Aligned;
};

Table TableOf(const LibraryListing& listing) {
    Table table{{"name", "rows", "columns", "subwells", "wells", "tags"}, {}};
    for (const LibraryEntry& plate : listing.plates) {
        if (!plate.found) continue;
        const std::int64_t positions = std::int64_t{plate.rows} * plate.cols;
        table.rows.push_back({plate.name, plate.rows, plate.cols, plate.subWells,
                              positions * plate.subWells, plate.tags});
    }
    return table;
}

ExitCode Run(const Options& options) {
    const LibraryListing listing = ListLibraryText(ReadLibrary(options.plateLibrary).Bytes());
    Print(TableText(TableOf(listing), options.form));
    if (listing.code == 0) return kDone;
    std::cerr << "plate: " << PrintableUtf8(ShownName(options.plateLibrary))
              << ": the search for a plate ends at line " << listing.stoppedAtLine
              << "; \"plate check\" says why\n";
    return kFailed;
}

} // namespace

Command MakeListCommand(CLI::App& app) {
    auto* const parser =
        app.add_subcommand("list", "List the plates that can be found in a library");
    auto options = std::make_shared<Options>();
    AddLibraryArgument(*parser, options->plateLibrary);
    AddFormOptions(*parser, options->form);
    parser->footer("Examples:\n"
                   "  plate list Plates.Dat\n"
                   "  plate list Plates.Dat --json | jq -r '.[] | select(.wells == 96) | .name'");
    return {parser, [options] { return Run(*options); }};
}

} // namespace zorvane
