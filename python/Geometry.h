#pragma once

#include "model/cmPlate.h"

#include <pybind11/numpy.h>

/// The places of a plate as arrays, in millimetres from its top left corner.
namespace zorvane::python {

using Numbers = pybind11::array_t<double>;

/// The centre of each position over all its sub-wells: rows x columns x (x, y). All of them fail
/// with 6 for more wells than a plate can have.
Numbers Centroids(const cmPlate& plate);
/// The box of each position, rims included: rows x columns x (left, top, right, bottom).
Numbers Envelopes(const cmPlate& plate);
/// The middle of each bottom: sub-wells x rows x columns x (x, y, z), which is the order of well
/// numbers.
Numbers Drops(const cmPlate& plate);
/// The columns of a table with a row for each well, in the order of well numbers.
pybind11::dict DropTable(const cmPlate& plate);

} // namespace zorvane::python
