#pragma once

#include "formats/PlateSource.h"
#include "model/cmPlate.h"

#include <string_view>

/// Labware definitions as JSON, schema 2 of those of Opentrons. A labware has one well at each
/// position; its Y runs upwards and its Z from the bottom of the plate.
namespace zorvane {

/// Whether this build can read and write labware. Without, both functions raise error 13.
bool HasLabware();

/// A labware, and what a definition does not hold of it.
struct LabwareSource {
    SourcePlate plate; ///< with one sub-well
    /// By how many millimetres the bottoms lie above HEIGHT less DEPTH, below it when negative.
    ExactNumber bottomOffset;
};

/// Error 13, with the path of the value, for text that is not JSON, not such a labware, or too
/// large to be one.
LabwareSource ReadLabware(std::string_view json);

/// One sub-well of a plate, by its position from 1, as a labware. Error 5, with the reason, for a
/// plate that a labware cannot hold.
String LabwareText(const cmPlate& plate, Long subWell);

/// The name by which a protocol loads the labware of a plate, or of one of its several sub-wells.
String LoadName(const cmPlate& plate, Long subWell);

} // namespace zorvane
