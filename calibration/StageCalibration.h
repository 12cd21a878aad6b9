#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

#include <cstdint>
#include <vector>

namespace zorvane {

/// A point of the plate, in millimetres from its top left corner with Y downwards, or one of an
/// instrument, in whatever unit and directions its stage has.
struct PlanePoint {
    Double x = 0;
    Double y = 0;
};

/// A point of the plate and where the instrument found it.
struct CalibrationPoint {
    PlanePoint plate;
    PlanePoint stage;
};

/// An affine map of the plane: x' = xx * x + xy * y + x0, y' = yx * x + yy * y + y0.
struct PlaneMap {
    Double xx = 1;
    Double xy = 0;
    Double yx = 0;
    Double yy = 1;
    Double x0 = 0;
    Double y0 = 0;

    PlanePoint operator()(const PlanePoint& point) const {
        return {xx * point.x + xy * point.y + x0, yx * point.x + yy * point.y + y0};
    }
};

/// Whether the axes of a stage turn as those of the plate do, X to the right and Y downwards, or
/// the other way, as with Y upwards. Two points do not show which; three do, and this is ignored.
enum class StageAxes : std::uint8_t { LikePlate, Mirrored };

/// Where the points of a plate lie on the stage of an instrument, from points that were measured.
///
/// Two points give the similarity (rotation, one scale, shift) through both. Three or more give the
/// affine map, which also has a scale for each axis and shear, with the least sum of the squared
/// distances on the stage: the normal equations of points that are moved to their mean and scaled,
/// where they lose nothing as the points are known not to lie in line (G. H. Golub and C. F. Van
/// Loan, Matrix Computations, 4th edition, Johns Hopkins University Press 2013, section 5.3).
class ZORVANE_EXPORT StageCalibration {
  public:
    /// Points whose largest distance from their mean is not above this share of their largest
    /// coordinate coincide.
    static constexpr Double kCoincident = 1e-9;
    /// Points lie in line where their spread across a line is not above this share of the spread
    /// along it: measuring errors would count more than a thousandfold.
    static constexpr Double kInLine = 1e-3;

    /// Error 5, with a description of its own, for points that determine no map which can be
    /// inverted: fewer than two, coordinates that are not finite or too large to compute with,
    /// points that coincide, or three and more in line, on the plate or on the stage.
    explicit StageCalibration(const std::vector<CalibrationPoint>& points,
                              StageAxes axes = StageAxes::LikePlate);

    PlanePoint ToStage(const PlanePoint& plate) const { return toStage_(plate); }
    PlanePoint ToPlate(const PlanePoint& stage) const { return toPlate_(stage); }

    const PlaneMap& PlateToStage() const { return toStage_; }
    const PlaneMap& StageToPlate() const { return toPlate_; }

    /// For each point, in the order given, where it was measured less where the map puts it, in the
    /// unit of the stage. Two or three points have none but rounding.
    const std::vector<PlanePoint>& Residuals() const { return residuals_; }
    /// The root of the mean square length of the residuals.
    Double RmsResidual() const { return rms_; }

  private:
    PlaneMap toStage_;
    PlaneMap toPlate_;
    std::vector<PlanePoint> residuals_;
    Double rms_ = 0;
};

} // namespace zorvane
