#pragma once

#include "calibration/StageCalibration.h"
#include "model/cmPlate.h"

#include <string_view>
#include <vector>

namespace zorvane {

/// The points of a calibration as a file gives them.
struct MeasuredPoints {
    std::vector<CalibrationPoint> points;
    std::vector<Long> lines; ///< the line of each, from 1
};

/// Reads comma-separated values with a column "well" or the columns "x" and "y" (mm), and with
/// "stage-x" and "stage-y". A well is the centre of a position, as "A1", or of one of its
/// sub-wells, as "A1.Drop1". Error 13, with the place, for anything else.
MeasuredPoints ReadMeasuredPoints(std::string_view csv, const cmPlate& plate);

} // namespace zorvane
