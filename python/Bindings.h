#pragma once

#include <pybind11/pybind11.h>

/// Each adds one subject to the Python module.
namespace zorvane::python {

void BindErrors(pybind11::module_& module);
void BindFindings(pybind11::module_& module);
void BindPlate(pybind11::module_& module);
void BindLibrary(pybind11::module_& module);
void BindCalibration(pybind11::module_& module);

} // namespace zorvane::python
