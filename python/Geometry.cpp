#include "python/Geometry.h"

#include "python/Decimal.h"
#include "python/Names.h"
#include "python/Text.h"

#include "model/DropCentre.h"
#include "runtime/RuntimeError.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace py = pybind11;

namespace zorvane::python {

namespace {

/// How many rows, columns and sub-wells there are to go through.
struct Extent {
    Extent(const cmPlate& plate, Long subWellCount)
        : rows(std::max<Integer>(plate.Rows(), 0)), cols(std::max<Integer>(plate.Cols(), 0)),
          subWells(subWellCount) {
        constexpr Long most = std::numeric_limits<Integer>::max();
        if (rows > 0 && cols > 0 &&
            (subWells > most || Long{rows} * cols > most || Long{rows} * cols * subWells > most)) {
            Raise(ErrorNumber::Overflow, "A plate cannot have more than 32767 wells");
        }
    }
    explicit Extent(const cmPlate& plate) : Extent(plate, plate.CompoundWell()->Count()) {}

    py::ssize_t Positions() const { return py::ssize_t{rows} * cols; }
    py::ssize_t Wells() const { return Positions() * subWells; }

    Integer rows;
    Integer cols;
    Long subWells;
};

} // namespace

Numbers Centroids(const cmPlate& plate) {
    const Extent extent(plate, 1);
    Numbers numbers({py::ssize_t{extent.rows}, py::ssize_t{extent.cols}, py::ssize_t{2}});
    double* next = numbers.mutable_data();
    for (Integer row = 0; row < extent.rows; ++row) {
        for (Integer col = 0; col < extent.cols; ++col) {
            const Coordinate centre = plate.WellCentroid(row, col);
            *next++ = Decimal(centre.X());
            *next++ = Decimal(centre.Y());
        }
    }
    return numbers;
}

Numbers Envelopes(const cmPlate& plate) {
    const Extent extent(plate, 1);
    Numbers numbers({py::ssize_t{extent.rows}, py::ssize_t{extent.cols}, py::ssize_t{4}});
    double* next = numbers.mutable_data();
    for (Integer row = 0; row < extent.rows; ++row) {
        for (Integer col = 0; col < extent.cols; ++col) {
            Coordinate low;
            Coordinate high;
            plate.WellEnvelope(row, col, low, high);
            for (const Single value : {low.X(), low.Y(), high.X(), high.Y()})
                *next++ = Decimal(value);
        }
    }
    return numbers;
}

Numbers Drops(const cmPlate& plate) {
    const Extent extent(plate);
    Numbers numbers({py::ssize_t{extent.subWells}, py::ssize_t{extent.rows},
                     py::ssize_t{extent.cols}, py::ssize_t{3}});
    double* next = numbers.mutable_data();
    std::vector<double> columns(static_cast<std::size_t>(extent.cols));
    for (const auto& subWell : *plate.CompoundWell()) {
        Integer col = 0;
        for (double& x : columns)
            x = Decimal(DropCentre(plate, *subWell, 0, col++).X());
        for (Integer row = 0; row < extent.rows; ++row) {
            const Coordinate first = DropCentre(plate, *subWell, row, 0);
            const double y = Decimal(first.Y());
            const double z = Decimal(first.Z());
            for (const double x : columns) {
                *next++ = x;
                *next++ = y;
                *next++ = z;
            }
        }
    }
    return numbers;
}

py::dict DropTable(const cmPlate& plate) {
    const Extent extent(plate);
    py::list names;
    for (const String& name : WellNamesOf(plate))
        names.append(Text(name));
    py::list subWells;
    const auto column = [&] { return Numbers(extent.Wells()); };
    py::array_t<int> rows(extent.Wells());
    py::array_t<int> columns(extent.Wells());
    Numbers sizeX = column();
    Numbers sizeY = column();
    py::ssize_t well = 0;
    for (const auto& subWell : *plate.CompoundWell()) {
        const py::object name = py::cast(Text(subWell->WellName()));
        for (py::ssize_t position = 0; position < extent.Positions(); ++position, ++well) {
            subWells.append(name);
            rows.mutable_at(well) = static_cast<int>(position / extent.cols);
            columns.mutable_at(well) = static_cast<int>(position % extent.cols);
            sizeX.mutable_at(well) = Decimal(subWell->WellSizeX());
            sizeY.mutable_at(well) = Decimal(subWell->WellSizeY());
        }
    }
    const py::object places = Drops(plate).attr("reshape")(extent.Wells(), 3).attr("T");
    py::dict table;
    table["well"] = names;
    table["sub_well"] = subWells;
    table["row"] = rows;
    table["column"] = columns;
    table["x"] = places[py::int_(0)];
    table["y"] = places[py::int_(1)];
    table["z"] = places[py::int_(2)];
    table["size_x"] = sizeX;
    table["size_y"] = sizeY;
    return table;
}

} // namespace zorvane::python
