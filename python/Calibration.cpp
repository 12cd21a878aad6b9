#include "python/Bindings.h"
#include "python/Geometry.h"

#include "calibration/StageCalibration.h"
#include "runtime/RuntimeError.h"

namespace py = pybind11;

namespace zorvane::python {

namespace {

using Points = py::array_t<double, py::array::c_style | py::array::forcecast>;

/// The x and y of an array whose last dimension they are.
PlanePoint PointAt(const double* numbers, py::ssize_t index) {
    return {numbers[2 * index], numbers[2 * index + 1]};
}

py::ssize_t CountOf(const Points& points) {
    if (points.ndim() < 1 || points.shape(points.ndim() - 1) != 2)
        throw py::value_error("points are an array whose last dimension is x and y");
    return points.size() / 2;
}

StageCalibration Calibrated(const Points& plate, const Points& stage, bool mirrored) {
    const py::ssize_t count = CountOf(plate);
    if (CountOf(stage) != count)
        throw py::value_error("there must be as many points on the stage as on the plate");
    std::vector<CalibrationPoint> points;
    for (py::ssize_t i = 0; i < count; ++i)
        points.push_back({PointAt(plate.data(), i), PointAt(stage.data(), i)});
    return StageCalibration(points, mirrored ? StageAxes::Mirrored : StageAxes::LikePlate);
}

/// The points of an array through a map, in an array of the same shape.
Numbers Mapped(const Points& points, const PlaneMap& map) {
    const py::ssize_t count = CountOf(points);
    Numbers mapped(std::vector<py::ssize_t>(points.shape(), points.shape() + points.ndim()));
    double* next = mapped.mutable_data();
    for (py::ssize_t i = 0; i < count; ++i) {
        const PlanePoint point = map(PointAt(points.data(), i));
        *next++ = point.x;
        *next++ = point.y;
    }
    return mapped;
}

Numbers Residuals(const StageCalibration& calibration) {
    const auto& residuals = calibration.Residuals();
    Numbers numbers({static_cast<py::ssize_t>(residuals.size()), py::ssize_t{2}});
    double* next = numbers.mutable_data();
    for (const PlanePoint& residual : residuals) {
        *next++ = residual.x;
        *next++ = residual.y;
    }
    return numbers;
}

Numbers Matrix(const StageCalibration& calibration) {
    const PlaneMap& map = calibration.PlateToStage();
    Numbers numbers({py::ssize_t{2}, py::ssize_t{3}});
    double* next = numbers.mutable_data();
    for (const double value : {map.xx, map.xy, map.x0, map.yx, map.yy, map.y0})
        *next++ = value;
    return numbers;
}

} // namespace

void BindCalibration(py::module_& module) {
    py::class_<StageCalibration>(module, "Calibration",
                                 R"(Where a plate lies on the stage of an instrument.

Two measured points give a turn, one scale and a shift; three or more not in line the affine map
with the least sum of the squared distances on the stage.)")
        .def(py::init(&Calibrated), py::arg("plate"), py::arg("stage"), py::arg("mirrored") = false,
             R"(Takes points of the plate in millimetres and where they were found.

Both are arrays of as many rows of x and y. mirrored says that the axes of the stage turn the other
way than the plate's, as with Y upwards; it counts for two points only, as more of them tell. Error
5 for points that determine no map: too few, coinciding, in line, not finite.)")
        .def(
            "to_stage",
            [](const StageCalibration& calibration, const Points& points) {
                return Mapped(points, calibration.PlateToStage());
            },
            py::arg("points"),
            "Points of the plate on the stage; arrays whose last dimension is x and y.")
        .def(
            "to_plate",
            [](const StageCalibration& calibration, const Points& points) {
                return Mapped(points, calibration.StageToPlate());
            },
            py::arg("points"), "Points of the stage on the plate, in millimetres.")
        .def_property_readonly(
            "matrix", &Matrix,
            "The map to the stage: 2 x 3 numbers, of which the last column is the shift.")
        .def_property_readonly("residuals", &Residuals,
                               "For each point, where it was measured less where the map puts it.")
        .def_property_readonly("rms", &StageCalibration::RmsResidual,
                               "The root of the mean square length of the residuals.");
}

} // namespace zorvane::python
