#pragma once

#include "apps/plate/calibration/CalibrationFile.h"
#include "apps/plate/table/Table.h"
#include "calibration/StageCalibration.h"

namespace zorvane {

/// Writes lengths in the unit of a stage with as many decimals as 0.0001 mm of the plate needs.
class StageNumbers {
  public:
    explicit StageNumbers(const StageCalibration& calibration);

    zorvane::Cell Cell(Double value) const;

  private:
    String picture_;
};

/// Each point of a calibration and how far off it is, in the unit of the stage.
Table ResidualTable(const MeasuredPoints& measured, const StageCalibration& calibration);

/// Tells the user how well more than three points agree.
void ReportFit(const String& file, const StageCalibration& calibration);

} // namespace zorvane
