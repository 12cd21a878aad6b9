#pragma once

#include "model/cmPlate.h"

#include <pybind11/pybind11.h>

#include <memory>

namespace zorvane::python {

void BindSubWell(pybind11::module_& module);

/// The sub-wells of a plate by name, in their order. Each keeps the plate, which is where what is
/// set is recorded.
pybind11::dict SubWellsOf(const std::shared_ptr<cmPlate>& plate);

} // namespace zorvane::python
