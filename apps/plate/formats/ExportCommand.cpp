#include "apps/plate/Arguments.h"
#include "apps/plate/Command.h"
#include "apps/plate/Files.h"
#include "formats/labware/Labware.h"
#include "formats/wells/WellTable.h"
#include "model/cmPlate.h"
#include "runtime/Text.h"

#include <CLI/Validators.hpp>

#include <filesystem>
#include <memory>
#include <set>

namespace zorvane {

namespace {

struct Options {
    String plateLibrary;
    String plate;
    String format;
    String subWell;
    bool eachSubWell = false;
    String output;
};

Long SubWellPosition(const cmPlate& plate, const String& name) {
    Long position = 0;
    for (const auto& subWell : *plate.CompoundWell()) {
        ++position;
        if (EqualNoCase(subWell->WellName(), name)) return position;
    }
    Fail("the plate has no sub-well <" + name + ">");
}

/// The one sub-well that a labware is to have.
Long ChosenSubWell(const cmPlate& plate, const Options& options) {
    if (!options.subWell.empty()) return SubWellPosition(plate, options.subWell);
    const Long count = plate.CompoundWell()->Count();
    if (count > 1) {
        Fail("a labware has one well at each position, and this plate has " +
             std::to_string(count) + " sub-wells: choose --sub-well or --each-sub-well");
    }
    return 1;
}

/// One file for each sub-well; all of them are made before the first is written.
void WriteEachSubWell(const cmPlate& plate, const String& folder) {
    std::vector<std::pair<String, String>> files;
    std::set<String> names;
    for (Long subWell = 1; subWell <= plate.CompoundWell()->Count(); ++subWell) {
        const String name = LoadName(plate, subWell) + ".json";
        if (!names.insert(name).second) Fail("two sub-wells would be written to " + name);
        const auto path = std::filesystem::path(folder) / name;
        files.emplace_back(path.string(), LabwareText(plate, subWell));
    }
    for (const auto& [file, text] : files)
        WriteFile(file, text);
}

void ExportLabware(const cmPlate& plate, const Options& options) {
    if (options.eachSubWell) return WriteEachSubWell(plate, options.output);
    WriteFile(options.output, LabwareText(plate, ChosenSubWell(plate, options)));
}

void ExportWells(const cmPlate& plate, const Options& options) {
    if (options.eachSubWell || !options.subWell.empty())
        Fail("a table has all sub-wells: --sub-well and --each-sub-well are for labware");
    WriteFile(options.output, WellTableText(plate));
}

ExitCode Run(const Options& options) {
    const cmPlate plate = ReadPlate(options.plateLibrary, options.plate);
    WithFile(options.plate, [&] {
        if (plate.CompoundWell()->Count() == 0) Fail("the plate has no sub-well");
        options.format == "csv" ? ExportWells(plate, options) : ExportLabware(plate, options);
    });
    return kDone;
}

} // namespace

Command MakeExportCommand(CLI::App& app) {
    auto* const parser =
        app.add_subcommand("export", "Write a plate in a format of other programs");
    auto options = std::make_shared<Options>();
    AddLibraryArgument(*parser, options->plateLibrary);
    AddPlateArgument(*parser, options->plate);
    parser->add_option("--to", options->format, "The format: opentrons or csv")
        ->required()
        ->check(CLI::IsMember({"opentrons", "csv"}));
    auto* const one = parser->add_option("--sub-well", options->subWell,
                                         "The sub-well that a labware is to have");
    auto* const output = parser->add_option(
        "-o,--output", options->output,
        "Write to a file, or with --each-sub-well to a folder, instead of standard output");
    parser
        ->add_flag("--each-sub-well", options->eachSubWell,
                   "Write a labware for each sub-well, named after the plate and the sub-well")
        ->excludes(one)
        ->needs(output);
    parser->footer(
        "opentrons is labware as JSON, schema 2; csv is a table of all wells in millimetres.\n"
        "Examples:\n"
        "  plate export Plates.Dat Batch_96 --to opentrons -o batch_96.json\n"
        "  plate export Plates.Dat Sitting_96x2 --to opentrons --each-sub-well -o labware\n"
        "  plate export Plates.Dat Batch_96 --to csv | head -3");
    return {parser, [options] { return Run(*options); }};
}

} // namespace zorvane
