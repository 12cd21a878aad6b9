#include "apps/plate/Arguments.h"

namespace zorvane {

void AddLibraryArgument(CLI::App& command, String& library) {
    command.add_option("library", library, "Plate library file; \"-\" is standard input")
        ->required();
}

void AddPlateArgument(CLI::App& command, String& plate) {
    command.add_option("plate", plate, "Name of the plate, in any letter case")->required();
}

} // namespace zorvane
