#include "apps/plate/Command.h"
#include "apps/plate/Files.h"
#include "apps/plate/formats/MapImport.h"
#include "apps/plate/formats/PlateImport.h"

#include <CLI/Validators.hpp>

#include <memory>

namespace zorvane {

namespace {

struct Options {
    std::vector<String> files;
    String format;
    String merged;
    MapOptions map;
    String output;
};

/// The format that the end of a file's name stands for.
String FormatOf(const Options& options) {
    if (!options.format.empty()) return options.format;
    const String& file = options.files.front();
    if (file.ends_with(".json")) return "opentrons";
    if (file.ends_with(".toml")) return "wellmap";
    Fail(file + ": the format does not show in the name: choose it with --from");
}

String ImportedText(const Options& options) {
    const String format = FormatOf(options);
    if (format == "opentrons") return LibraryOfLabware(options.files, options.merged);
    if (!options.merged.empty()) Fail("only labware can be merged");
    if (format == "csv") return LibraryOfTables(options.files);
    if (options.files.size() > 1) Fail("only one plate map can be read at a time");
    const String& file = options.files.front();
    return format == "matrix" ? WellDataOfMatrix(file, options.map)
                              : WellDataOfWellmap(file, options.map);
}

void AddMapOptions(CLI::App& parser, MapOptions& map) {
    parser
        .add_option(
            "--column", map.columns,
            "Plate maps: the column of the data that a matrix is (text), or COLUMN=PARAMETER "
            "for each parameter of a layout to take")
        ->allow_extra_args(false);
    parser.add_option("--sub-well", map.subWell,
                      "Plate maps: the sub-well that the data belong to (the first one)");
    parser.add_option("--map-plate", map.plate, "wellmap: which of the plates of the file");
}

} // namespace

Command MakeImportCommand(CLI::App& app) {
    auto* const parser =
        app.add_subcommand("import", "Turn files of other programs into plates or well data");
    auto options = std::make_shared<Options>();
    parser->add_option("files", options->files, "Files to read; \"-\" is standard input")
        ->required();
    parser
        ->add_option("--from", options->format,
                     "The format: opentrons, csv, matrix or wellmap; by default the one that .json "
                     "and .toml stand for")
        ->check(CLI::IsMember({"opentrons", "csv", "matrix", "wellmap"}));
    parser->add_option("--merge", options->merged,
                       "opentrons: make one plate of this name, with a sub-well for each file");
    AddMapOptions(*parser, options->map);
    parser->add_option("-o,--output", options->output,
                       "Write to a file instead of standard output");
    parser->footer(
        "opentrons (labware as JSON, schema 2) and csv (a table of wells) become definitions for "
        "a\n"
        "plate library; matrix (rows by columns of a plate) and wellmap (TOML) become data of "
        "wells\n"
        "as \"plate draw --data\" reads them.\n"
        "Examples:\n"
        "  plate import *.json -o Plates.Dat\n"
        "  plate import drop.json reservoir.json --merge Sitting_96 >> Plates.Dat\n"
        "  plate import layout.toml | plate draw Plates.Dat Batch_96 --data - > layout.svg");
    return {parser, [options] {
                WriteFile(options->output, ImportedText(*options));
                return kDone;
            }};
}

} // namespace zorvane
