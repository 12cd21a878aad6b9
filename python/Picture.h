#pragma once

#include "model/cmPlate.h"

#include <pybind11/pybind11.h>

namespace zorvane::python {

/// The arguments of Plate.to_svg, as it documents them.
String ToSvg(const cmPlate& plate, double scale, Integer width, Integer height,
             const pybind11::iterable& selected, const pybind11::dict& wells);

} // namespace zorvane::python
