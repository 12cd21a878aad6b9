#pragma once

#include "control/Plate.h"
#include "control/WellNames.h"
#include "runtime/Types.h"

#include <optional>
#include <string_view>
#include <vector>

/// Data of wells as comma-separated values. The first line names the columns, in any order and
/// letter case: "well" (always), "sub-well", "defined" (yes or no), "volume", "text", "error" and
/// "annotation". Each further line is one well.
namespace zorvane {

/// What one line says of a well. A value is absent when the file has no such column.
struct WellDataRow {
    Integer wellNo = 0;
    std::optional<Boolean> defined;
    std::optional<Single> volume;
    Boolean hasVolume = false; ///< the volume is given and not left empty, which counts as 0
    std::optional<String> text;
    std::optional<Integer> errorCode;
    std::optional<String> annotation;
};

/// Reads a whole file. An empty field is a value too: no, 0 or empty text, and the first sub-well.
/// Error 13 with a description that begins with the place, as in "line 3, column 4 (volume): ...",
/// for anything that cannot be applied.
std::vector<WellDataRow> ParseWellData(std::string_view csv, const WellNames& names);

/// Writes the values to the wells of the plate for which they were parsed, and colours each well as
/// its mark and error code ask.
void ApplyWellData(Plate& plate, const std::vector<WellDataRow>& rows);

/// The data of every well, sub-well by sub-well, with all columns. The volume of a well that has
/// none is left empty.
String WellDataText(const Plate& plate, const WellNames& names);

} // namespace zorvane
