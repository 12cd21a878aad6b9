#include "calibration/StageCalibration.h"

#include "Test.h"

#include <array>
#include <cmath>
#include <limits>

namespace zorvane {
namespace {

std::vector<CalibrationPoint> Measured(const PlaneMap& map, const std::vector<PlanePoint>& plate) {
    std::vector<CalibrationPoint> points;
    points.reserve(plate.size());
    for (const PlanePoint& point : plate)
        points.push_back({point, map(point)});
    return points;
}

void ExpectNear(const PlanePoint& point, const PlanePoint& expected, Double tolerance) {
    EXPECT_NEAR(point.x, expected.x, tolerance);
    EXPECT_NEAR(point.y, expected.y, tolerance);
}

/// Coordinates in steps, far from the stage's origin.
constexpr PlaneMap kSheared{31.5, -0.75, 0.5, -32.25, 1e6, -2e6};

TEST(StageCalibration, TwoPointsTurnScaleAndShift) {
    // A quarter turn, ten times as large: the plate's X axis becomes the stage's Y axis.
    const std::vector<CalibrationPoint> points{{{1, 2}, {100, 200}}, {{4, 2}, {100, 230}}};
    const StageCalibration like(points);
    ExpectNear(like.ToStage({1, 5}), {70, 200}, 1e-9);
    EXPECT_NEAR(like.PlateToStage().xx, 0, 1e-12);
    EXPECT_NEAR(like.PlateToStage().yx, 10, 1e-12);

    const StageCalibration mirrored(points, StageAxes::Mirrored);
    ExpectNear(mirrored.ToStage({1, 5}), {130, 200}, 1e-9);
    for (const auto& calibration : {like, mirrored}) {
        EXPECT_NEAR(calibration.RmsResidual(), 0, 1e-12);
        ExpectNear(calibration.ToPlate(calibration.ToStage({7, 9})), {7, 9}, 1e-12);
    }
}

TEST(StageCalibration, ThreePointsOrMoreGiveTheAffineMapThroughThem) {
    const std::vector<PlanePoint> plate{{14.38, 11.24}, {113.38, 11.24}, {14.38, 74.24}, {60, 40}};
    for (const std::size_t count : {3U, 4U}) {
        const StageCalibration calibration(
            Measured(kSheared, {plate.begin(), plate.begin() + static_cast<std::ptrdiff_t>(count)}),
            StageAxes::Mirrored);
        EXPECT_NEAR(calibration.PlateToStage().xx, kSheared.xx, 1e-10);
        EXPECT_NEAR(calibration.PlateToStage().xy, kSheared.xy, 1e-10);
        EXPECT_NEAR(calibration.PlateToStage().yx, kSheared.yx, 1e-10);
        EXPECT_NEAR(calibration.PlateToStage().yy, kSheared.yy, 1e-10);
        EXPECT_NEAR(calibration.RmsResidual(), 0, 1e-8);
        ExpectNear(calibration.ToPlate(calibration.ToStage({80, 50})), {80, 50}, 1e-9);
    }
}

TEST(StageCalibration, ResidualsAreThoseOfLeastSquares) {
    // Four corners, moved alternately along both axes: no affine map can follow, so the best one
    // stays as it was, and the moves are the residuals.
    constexpr std::array<Double, 4> sign{1, -1, 1, -1};
    auto points = Measured(kSheared, {{0, 0}, {100, 0}, {100, 60}, {0, 60}});
    for (std::size_t i = 0; i < 4; ++i) {
        points[i].stage.x += 3 * sign[i];
        points[i].stage.y -= 4 * sign[i];
    }
    const StageCalibration calibration(points);
    EXPECT_NEAR(calibration.PlateToStage().yy, kSheared.yy, 1e-10);
    EXPECT_NEAR(calibration.RmsResidual(), 5, 1e-8);
    ASSERT_EQ(calibration.Residuals().size(), 4U);
    for (std::size_t i = 0; i < 4; ++i)
        ExpectNear(calibration.Residuals()[i], {3 * sign[i], -4 * sign[i]}, 1e-8);
}

TEST(StageCalibration, StaysExactFarFromTheOriginAndInAnyUnit) {
    // The normal equations of points that are not centred would have no correct digit here.
    for (const Double unit : {1e-6, 1.0, 1e6}) {
        const PlaneMap map{unit, 0, 0, -unit, 1e5 * unit, 1e5 * unit};
        const StageCalibration calibration(
            Measured(map, {{1e6, 1e6}, {1e6 + 9, 1e6}, {1e6, 1e6 + 9}, {1e6 + 9, 1e6 + 9}}));
        ExpectNear(calibration.ToStage({1e6 + 4.5, 1e6 + 4.5}), map({1e6 + 4.5, 1e6 + 4.5}),
                   1e-8 * unit);
    }
}

TEST(StageCalibration, RefusesPointsThatDetermineNoMap) {
    constexpr Double inf = std::numeric_limits<Double>::infinity();
    constexpr Double nan = std::numeric_limits<Double>::quiet_NaN();
    const String inLine = ": measure one that lies well away from it, or give two points only";
    const struct {
        std::vector<CalibrationPoint> points;
        String description;
    } cases[] = {
        {{}, "a calibration needs two points or more"},
        {{{{1, 1}, {1, 1}}}, "a calibration needs two points or more"},
        {{{{1, 1}, {1, 1}}, {{1, 1}, {5, 5}}}, "the points coincide on the plate"},
        {{{{0, 0}, {1, 1}}, {{0, 0}, {5, 5}}}, "the points coincide on the plate"},
        {{{{1, 1}, {5, 5}}, {{9, 1}, {5, 5}}}, "the points coincide on the stage"},
        {{{{1e9, 0}, {1, 1}}, {{1e9 + 0.5, 0}, {5, 5}}}, "the points coincide on the plate"},
        {{{{0, 0}, {0, 0}}, {{50, 0.04}, {50, 9}}, {{100, 0}, {100, 0}}},
         "the points lie in line on the plate" + inLine},
        {{{{0, 0}, {0, 0}}, {{0, 0}, {1, 0}}, {{100, 0}, {100, 9}}},
         "the points lie in line on the plate" + inLine},
        {{{{0, 0}, {0, 0}}, {{50, 20}, {50, 50}}, {{100, 0}, {100, 100}}},
         "the points lie in line on the stage" + inLine},
        {{{{0, nan}, {0, 0}}, {{1, 1}, {1, 1}}},
         "a coordinate of a calibration is not a finite number"},
        {{{{0, 0}, {0, 0}}, {{1, 1}, {inf, 1}}},
         "a coordinate of a calibration is not a finite number"},
        {{{{0, 0}, {-1e308, 0}}, {{1e-300, 0}, {1e308, 0}}},
         "the coordinates of a calibration are too large to compute with"},
    };
    for (const auto& row : cases) {
        const RaisedError error = RaisedBy([&] { StageCalibration{row.points}; });
        EXPECT_EQ(error.number, 5);
        EXPECT_EQ(error.description, row.description);
    }
    // Just far enough away from the line.
    EXPECT_NO_THROW(
        StageCalibration({{{0, 0}, {0, 0}}, {{50, 0.2}, {50, 9}}, {{100, 0}, {100, 0}}}));
}

} // namespace
} // namespace zorvane
