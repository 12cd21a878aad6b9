#pragma once

#include "runtime/Types.h"

#include <vector>

namespace zorvane {

/// What the command line says of a plate map.
struct MapOptions {
    std::vector<String> columns; ///< "COLUMN" of a matrix, "COLUMN=PARAMETER" of a layout
    String subWell;              ///< empty for the first one
    String plate;                ///< of a layout with several
};

/// Data of wells from a plate map. A failure names the file.
String WellDataOfMatrix(const String& file, const MapOptions& options);
String WellDataOfWellmap(const String& file, const MapOptions& options);

} // namespace zorvane
