#include "calibration/StageCalibration.h"

#include "runtime/RuntimeError.h"

#include <algorithm>
#include <cmath>
#include <complex>

namespace zorvane {

namespace {

using Points = std::vector<PlanePoint>;

[[noreturn]] void Refuse(const String& description) {
    Raise(ErrorNumber::InvalidProcedureCall, description, "Zorvane::StageCalibration");
}

bool IsFinite(const PlanePoint& point) { return std::isfinite(point.x) && std::isfinite(point.y); }

Double Largest(const Points& points) {
    Double largest = 0;
    for (const PlanePoint& point : points)
        largest = std::max({largest, std::abs(point.x), std::abs(point.y)});
    return largest;
}

/// Points moved to their mean and scaled to coordinates of at most 1.
struct Centred {
    PlanePoint mean;
    Double scale = 0;
    Points points;
};

Centred Centre(Points points, const char* where) {
    const Double largest = Largest(points);
    Centred centred;
    for (const PlanePoint& point : points) {
        centred.mean.x += point.x / static_cast<Double>(points.size());
        centred.mean.y += point.y / static_cast<Double>(points.size());
    }
    for (PlanePoint& point : points)
        point = {point.x - centred.mean.x, point.y - centred.mean.y};
    centred.scale = Largest(points);
    if (!(centred.scale > largest * StageCalibration::kCoincident))
        Refuse("the points coincide on the " + String(where));
    for (PlanePoint& point : points)
        point = {point.x / centred.scale, point.y / centred.scale};
    centred.points = std::move(points);
    return centred;
}

/// The sum of one coordinate of some points times one of others.
Double Sum(const Points& a, Double PlanePoint::*ofA, const Points& b, Double PlanePoint::*ofB) {
    Double sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i)
        sum += a[i].*ofA * b[i].*ofB;
    return sum;
}

/// The symmetric matrix of the sums of squares and products.
struct Moments {
    Double xx, xy, yy;

    explicit Moments(const Points& points)
        : xx(Sum(points, &PlanePoint::x, points, &PlanePoint::x)),
          xy(Sum(points, &PlanePoint::x, points, &PlanePoint::y)),
          yy(Sum(points, &PlanePoint::y, points, &PlanePoint::y)) {}

    Double Determinant() const { return xx * yy - xy * xy; }
    /// The spread across the line closest to the points, as a share of that along it.
    Double Flatness() const {
        const Double along = (xx + yy) / 2 + std::hypot((xx - yy) / 2, xy);
        return std::sqrt(std::max(Determinant(), 0.0)) / along;
    }
};

void RequireTwoDimensions(const Moments& moments, const char* where) {
    if (moments.Flatness() > StageCalibration::kInLine) return;
    Refuse("the points lie in line on the " + String(where) +
           ": measure one that lies well away from it, or give two points only");
}

/// The linear part through two points, as the quotient of two complex numbers.
PlaneMap Similarity(const Points& plate, const Points& stage, StageAxes axes) {
    const Double sign = axes == StageAxes::Mirrored ? -1 : 1;
    using Complex = std::complex<Double>;
    const Complex turn = Complex(stage[0].x, stage[0].y) / Complex(plate[0].x, sign * plate[0].y);
    return {turn.real(), -sign * turn.imag(), turn.imag(), sign * turn.real(), 0, 0};
}

/// The linear part of the least sum of squares.
PlaneMap LeastSquares(const Points& plate, const Points& stage) {
    const Moments moments(plate);
    RequireTwoDimensions(moments, "plate");
    RequireTwoDimensions(Moments(stage), "stage");
    const Double determinant = moments.Determinant();
    const auto row = [&](Double PlanePoint::*coordinate) {
        const Double x = Sum(plate, &PlanePoint::x, stage, coordinate);
        const Double y = Sum(plate, &PlanePoint::y, stage, coordinate);
        return PlanePoint{(x * moments.yy - y * moments.xy) / determinant,
                          (y * moments.xx - x * moments.xy) / determinant};
    };
    const PlanePoint toX = row(&PlanePoint::x);
    const PlanePoint toY = row(&PlanePoint::y);
    return {toX.x, toX.y, toY.x, toY.y, 0, 0};
}

/// A linear part between centred points as the map between the points themselves.
PlaneMap Uncentred(PlaneMap map, const Centred& from, const Centred& to) {
    for (Double* const part : {&map.xx, &map.xy, &map.yx, &map.yy})
        *part *= to.scale / from.scale;
    const PlanePoint moved = map(from.mean);
    map.x0 = to.mean.x - moved.x;
    map.y0 = to.mean.y - moved.y;
    return map;
}

PlaneMap Inverse(const PlaneMap& map) {
    // The determinant of coordinates in steps or metres can be too large or small for a Double.
    const Double scale =
        std::max({std::abs(map.xx), std::abs(map.xy), std::abs(map.yx), std::abs(map.yy)});
    const Double xx = map.xx / scale, xy = map.xy / scale, yx = map.yx / scale, yy = map.yy / scale;
    const Double divisor = (xx * yy - xy * yx) * scale;
    PlaneMap inverse{yy / divisor, -xy / divisor, -yx / divisor, xx / divisor, 0, 0};
    const PlanePoint origin = inverse({map.x0, map.y0});
    inverse.x0 = -origin.x;
    inverse.y0 = -origin.y;
    return inverse;
}

bool IsFinite(const PlaneMap& map) {
    return IsFinite(PlanePoint{map.xx, map.xy}) && IsFinite(PlanePoint{map.yx, map.yy}) &&
           IsFinite(PlanePoint{map.x0, map.y0});
}

} // namespace

StageCalibration::StageCalibration(const std::vector<CalibrationPoint>& points, StageAxes axes) {
    if (points.size() < 2) Refuse("a calibration needs two points or more");
    Points onPlate;
    Points onStage;
    for (const CalibrationPoint& point : points) {
        if (!IsFinite(point.plate) || !IsFinite(point.stage))
            Refuse("a coordinate of a calibration is not a finite number");
        onPlate.push_back(point.plate);
        onStage.push_back(point.stage);
    }
    const Centred plate = Centre(std::move(onPlate), "plate");
    const Centred stage = Centre(std::move(onStage), "stage");
    const PlaneMap linear = points.size() == 2 ? Similarity(plate.points, stage.points, axes)
                                               : LeastSquares(plate.points, stage.points);
    toStage_ = Uncentred(linear, plate, stage);
    toPlate_ = Inverse(toStage_);
    Double squares = 0;
    for (const CalibrationPoint& point : points) {
        const PlanePoint mapped = ToStage(point.plate);
        residuals_.push_back({point.stage.x - mapped.x, point.stage.y - mapped.y});
        squares += std::pow(std::hypot(residuals_.back().x, residuals_.back().y), 2);
    }
    rms_ = std::sqrt(squares / static_cast<Double>(points.size()));
    if (!IsFinite(toStage_) || !IsFinite(toPlate_) || !std::isfinite(rms_))
        Refuse("the coordinates of a calibration are too large to compute with");
}

} // namespace zorvane
