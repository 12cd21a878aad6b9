#include "apps/plate/Arguments.h"
#include "apps/plate/Command.h"
#include "apps/plate/Files.h"

#include <memory>

namespace zorvane {

namespace {

struct Options {
    String plateLibrary;
    String plate;
    bool fields = false;
};

ExitCode Run(const Options& options) {
    const LibraryText library = ReadLibrary(options.plateLibrary);
    Print(WithFile(options.plateLibrary, [&] {
        return options.fields ? library.LookedUp(options.plate).AsText()
                              : library.Get(options.plate).definition;
    }));
    return kDone;
}

} // namespace

Command MakeTextCommand(CLI::App& app) {
    auto* const parser = app.add_subcommand("text", "Write the definition of a plate as text");
    auto options = std::make_shared<Options>();
    AddLibraryArgument(*parser, options->plateLibrary);
    AddPlateArgument(*parser, options->plate);
    parser->add_flag("--fields", options->fields,
                     "Write every value in a fixed order instead of the lines as they were read");
    parser->footer(
        "The text has CR LF line ends, as library files are written. The lines are those "
        "of the\n"
        "plate itself; the values of --fields also have what it keeps from plates before "
        "it.\n"
        "Examples:\n"
        "  plate text Plates.Dat Batch_96\n"
        "  plate text Plates.Dat Batch_96 --fields > Batch_96.Dat");
    return {parser, [options] { return Run(*options); }};
}

} // namespace zorvane
