#pragma once

#include "formats/PlateSource.h"
#include "model/cmPlate.h"

#include <string_view>
#include <vector>

/// All wells of plates as comma-separated values, one line a sub-well at a position. The columns,
/// in any order and letter case: plate, length, width, height, shelf-depth, tags, well, sub-well,
/// style, x, y, z, depth, size-x, size-y, rim-width, rim-height, volume. Lengths are millimetres, X
/// to the right and Y downwards from the top left corner, Z upwards from the bottom of the plate to
/// that of the well.
namespace zorvane {

/// The plates of a file in the order of their first lines. The columns plate, length, width,
/// height, well, x, y and size-x must be there, and depth or z. Without its column, a style is
/// ROUND, the sub-well "Well", size-y as size-x, and all else 0. Error 13, with the place, for any
/// other file.
std::vector<SourcePlate> ReadWellTable(std::string_view csv);

/// The lines of one plate; the errors of PlateWells.
String WellTableText(const cmPlate& plate);

} // namespace zorvane
