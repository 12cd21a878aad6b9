#include "apps/plate/Arguments.h"
#include "apps/plate/Command.h"
#include "apps/plate/Files.h"
#include "apps/plate/calibration/CalibrationFile.h"
#include "apps/plate/calibration/CalibrationTable.h"
#include "apps/plate/table/Table.h"
#include "apps/plate/wells/WellTables.h"

#include <algorithm>
#include <memory>

namespace zorvane {

namespace {

struct Options {
    String plateLibrary;
    String plate;
    TableForm form = TableForm::Aligned;
    String calibration;
    StageAxes axes = StageAxes::LikePlate;
    bool residuals = false;
    bool subWells = false;
};

Table WellTable(const cmPlate& plate, const Options& options) {
    return WithPlate(options.plate,
                     [&] { return options.subWells ? SubWellTable(plate) : PositionTable(plate); });
}

/// Adds where the centres, which the columns "x" and "y" have, lie on the stage.
void AddStageColumns(Table& table, const StageCalibration& calibration) {
    const auto place = [&](const char* column) {
        return std::find(table.columns.begin(), table.columns.end(), column) -
               table.columns.begin();
    };
    const auto x = static_cast<std::size_t>(place("x"));
    const auto y = static_cast<std::size_t>(place("y"));
    const StageNumbers numbers(calibration);
    table.columns.insert(table.columns.end(), {"stage-x", "stage-y"});
    for (auto& row : table.rows) {
        const PlanePoint stage =
            calibration.ToStage({std::get<Single>(row[x]), std::get<Single>(row[y])});
        row.insert(row.end(), {numbers.Cell(stage.x), numbers.Cell(stage.y)});
    }
}

/// The wells on the stage, or how well the calibration fits its own points.
Table CalibratedTable(const cmPlate& plate, const Options& options) {
    const String file = ReadFile(options.calibration);
    return WithFile(options.calibration, [&] {
        const MeasuredPoints measured = ReadMeasuredPoints(file, plate);
        const StageCalibration calibration(measured.points, options.axes);
        ReportFit(options.calibration, calibration);
        if (options.residuals) return ResidualTable(measured, calibration);
        Table table = WellTable(plate, options);
        AddStageColumns(table, calibration);
        return table;
    });
}

ExitCode Run(const Options& options) {
    const cmPlate plate = ReadPlate(options.plateLibrary, options.plate);
    const Table table =
        options.calibration.empty() ? WellTable(plate, options) : CalibratedTable(plate, options);
    Print(TableText(table, options.form));
    return kDone;
}

void AddCalibrationOptions(CLI::App& parser, Options& options) {
    auto* const file =
        parser.add_option("--calibration", options.calibration,
                          "CSV file of points measured on an instrument's stage: add "
                          "where the centres lie there");
    parser
        .add_flag_callback(
            "--mirrored", [&options] { options.axes = StageAxes::Mirrored; },
            "The stage's axes turn the other way than the plate's, as with Y upwards; for two "
            "points, which do not tell")
        ->needs(file);
    parser
        .add_flag("--residuals", options.residuals,
                  "Instead of the wells, show how far each point of the calibration is off")
        ->needs(file);
}

} // namespace

Command MakeWellsCommand(CLI::App& app) {
    auto* const parser =
        app.add_subcommand("wells", "Show where each well position of a plate lies");
    auto options = std::make_shared<Options>();
    AddLibraryArgument(*parser, options->plateLibrary);
    AddPlateArgument(*parser, options->plate);
    parser->add_flag("--sub-wells", options->subWells,
                     "Show every sub-well of each position, with its size and Z");
    AddFormOptions(*parser, options->form);
    AddCalibrationOptions(*parser, *options);
    parser->footer(
        "Rows and columns count from 0. x and y are the centre of a position over all its\n"
        "sub-wells, the others its box, rims included: mm from the top left corner.\n"
        "With --sub-wells x and y are the centre of a sub-well and z is its bottom, the height of\n"
        "the plate less the depth; volume is what it can hold.\n"
        "A calibration has the columns well (as A1 or A1.Drop1), or x and y in mm, and stage-x "
        "and\n"
        "stage-y. Two points give a turn, a scale and a shift; three or more the best affine map.\n"
        "Examples:\n"
        "  plate wells Plates.Dat Batch_96\n"
        "  plate wells Plates.Dat Sitting_96x2 --sub-wells --csv > drops.csv\n"
        "  plate wells Plates.Dat Batch_96 --calibration stage.csv");
    return {parser, [options] { return Run(*options); }};
}

} // namespace zorvane
