#include "apps/plate/Command.h"
#include "apps/plate/Files.h"
#include "apps/plate/table/Table.h"
#include "model/cmPlate.h"

#include <limits>
#include <memory>

namespace zorvane {

namespace {

struct Options {
    String plateLibrary;
    String plate;
    TableForm form = TableForm::Aligned;
};

std::vector<Cell> WellRow(const cmPlate& plate, Integer row, Integer col) {
    Coordinate low;
    Coordinate high;
    plate.WellEnvelope(row, col, low, high);
    const Coordinate centre = plate.WellCentroid(row, col);
    return {plate.WellLegend(row, col),
            row,
            col,
            centre.X(),
            centre.Y(),
            low.X(),
            low.Y(),
            high.X(),
            high.Y()};
}

Table TableOf(const cmPlate& plate) {
    Table table{{"well", "row", "column", "x", "y", "xmin", "ymin", "xmax", "ymax"}, {}};
    for (Integer row = 0; row < plate.Rows(); ++row) {
        for (Integer col = 0; col < plate.Cols(); ++col)
            table.rows.push_back(WellRow(plate, row, col));
    }
    return table;
}

ExitCode Run(const Options& options) {
    cmPlate plate;
    if (!plate.SetPlate(options.plateLibrary, options.plate)) return kFailed;
    if (Long{plate.Rows()} * plate.Cols() > std::numeric_limits<Integer>::max())
        Fail(options.plate + ": a plate cannot have more than 32767 wells");
    const Table table = WithFile(options.plate, [&] { return TableOf(plate); });
    Print(TableText(table, options.form));
    return kDone;
}

} // namespace

Command MakeWellsCommand(CLI::App& app) {
    auto* const parser =
        app.add_subcommand("wells", "Show where each well position of a plate lies");
    auto options = std::make_shared<Options>();
    parser->add_option("library", options->plateLibrary, "Plate library file")->required();
    parser->add_option("plate", options->plate, "Name of the plate, in any letter case")
        ->required();
    AddFormOptions(*parser, options->form);
    parser->footer(
        "Rows and columns count from 0. x and y are the centre of a position over all its\n"
        "sub-wells, the others its box, rims included: mm from the top left corner.\n"
        "Examples:\n"
        "  plate wells Plates.Dat Batch_96\n"
        "  plate wells Plates.Dat Batch_96 --csv > wells.csv");
    return {parser, [options] { return Run(*options); }};
}

} // namespace zorvane
