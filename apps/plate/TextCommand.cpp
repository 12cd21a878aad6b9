#include "apps/plate/Command.h"
#include "apps/plate/Files.h"
#include "model/cmPlate.h"

#include <memory>

namespace zorvane {

namespace {

struct Options {
    String plateLibrary;
    String plate;
    bool fields = false;
};

/// The plate as its own lines give it: each plate is read into a new object, so that nothing of the
/// plates before it shows.
std::unique_ptr<cmPlate> ReadAlone(const String& library, const String& name) {
    TextFile file;
    file.OpenInput(library);
    for (;;) {
        constexpr Integer otherPlate = 1;
        auto plate = std::make_unique<cmPlate>();
        const Integer result = plate->ReadNextPlate(file, name);
        if (result == 0) return plate;
        if (result != otherPlate || file.AtEnd()) Fail("no plate <" + name + "> can be found");
    }
}

ExitCode Run(const Options& options) {
    const auto plate = WithFile(options.plateLibrary,
                                [&] { return ReadAlone(options.plateLibrary, options.plate); });
    Print(options.fields ? plate->AsText() : plate->Text());
    return kDone;
}

} // namespace

Command MakeTextCommand(CLI::App& app) {
    auto* const parser = app.add_subcommand("text", "Write the definition of a plate as text");
    auto options = std::make_shared<Options>();
    parser->add_option("library", options->plateLibrary, "Plate library file")->required();
    parser->add_option("plate", options->plate, "Name of the plate, in any letter case")
        ->required();
    parser->add_flag("--fields", options->fields,
                     "Write every value in a fixed order instead of the lines as they were read");
    parser->footer("The text has CR LF line ends, as library files are written.\n"
                   "Examples:\n"
                   "  plate text Plates.Dat Batch_96\n"
                   "  plate text Plates.Dat Batch_96 --fields >> Other.Dat");
    return {parser, [options] { return Run(*options); }};
}

} // namespace zorvane
