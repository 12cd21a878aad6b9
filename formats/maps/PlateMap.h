#pragma once

#include "formats/WellPosition.h"
#include "runtime/Types.h"

#include <string_view>
#include <utility>
#include <vector>

/// Plate maps: what is in the wells of a plate, written by people.
namespace zorvane {

/// What a map says of one well: names of parameters and their values.
struct MappedWell {
    WellPosition position;
    std::vector<std::pair<String, String>> parameters;
};

/// Reads a matrix: comma-separated values whose first line has the numbers of the columns, after a
/// field that does not matter, and whose other lines begin with the letters of the rows. Wells with
/// an empty field are left out; all others have the one parameter. Error 13, with the place, for
/// anything else.
std::vector<MappedWell> ReadMatrix(std::string_view csv, const String& parameter);

/// Whether this build can read wellmap files. Without, ReadWellmap raises error 13.
bool HasWellmap();

/// Reads a layout file of wellmap: TOML with the groups expt, plate, row, col, irow, icol, block
/// and well. Of several plates, the one of that name is read. Wells without a parameter are left
/// out. Error 13, with the line, for what is no such layout, for one that includes other files, and
/// for one of more than 32767 wells or a million values.
std::vector<MappedWell> ReadWellmap(std::string_view toml, const String& plateName = {});

/// Which parameters become which columns of well data, as pairs of the column and the parameter.
using MapColumns = std::vector<std::pair<String, String>>;

/// Wells as the data that WellDataCsv reads, of one sub-well where it is named. A parameter with
/// the name of a column is that column; all others go into the text, as "name: value". Where
/// columns are chosen, parameters that are not among them are left out. Error 13 for a column that
/// is none, a volume or an error code that is no number, and a row that no plate can have.
String WellDataOf(const std::vector<MappedWell>& wells, const String& subWell,
                  const MapColumns& columns = {});

} // namespace zorvane
