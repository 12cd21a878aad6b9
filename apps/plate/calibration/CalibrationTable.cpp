#include "apps/plate/calibration/CalibrationTable.h"

#include "runtime/NumberText.h"
#include "runtime/Text.h"

#include <algorithm>
#include <cmath>
#include <iostream>

namespace zorvane {

StageNumbers::StageNumbers(const StageCalibration& calibration) {
    const PlaneMap& map = calibration.PlateToStage();
    const Double scale = std::max(std::hypot(map.xx, map.yx), std::hypot(map.xy, map.yy));
    const auto decimals = std::clamp(4 - std::floor(std::log10(scale)), 1.0, 15.0);
    picture_ = "0." + String(static_cast<std::size_t>(decimals), '0');
}

Cell StageNumbers::Cell(Double value) const { return NumberText{FormatPicture(value, picture_)}; }

Table ResidualTable(const MeasuredPoints& measured, const StageCalibration& calibration) {
    const StageNumbers numbers(calibration);
    Table table{{"line", "x", "y", "stage-x", "stage-y", "off-x", "off-y", "off"}, {}};
    for (std::size_t i = 0; i < measured.points.size(); ++i) {
        const CalibrationPoint& point = measured.points[i];
        const PlanePoint& off = calibration.Residuals()[i];
        table.rows.push_back({measured.lines[i], static_cast<Single>(point.plate.x),
                              static_cast<Single>(point.plate.y), numbers.Cell(point.stage.x),
                              numbers.Cell(point.stage.y), numbers.Cell(off.x), numbers.Cell(off.y),
                              numbers.Cell(std::hypot(off.x, off.y))});
    }
    return table;
}

void ReportFit(const String& file, const StageCalibration& calibration) {
    const std::size_t count = calibration.Residuals().size();
    if (count <= 3) return;
    const NumberText rms =
        std::get<NumberText>(StageNumbers(calibration).Cell(calibration.RmsResidual()));
    std::cerr << "plate: " << PrintableUtf8(file) << ": " << count << " points, off by "
              << rms.digits << " (RMS) in the unit of the stage\n";
}

} // namespace zorvane
