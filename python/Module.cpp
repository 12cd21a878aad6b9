#include "python/Bindings.h"

PYBIND11_MODULE(_zorvane, module) {
    using namespace zorvane::python;
    module.doc() = "Plates, their geometry in millimetres, and pictures of them.";
    module.attr("__version__") = ZORVANE_VERSION;
    BindErrors(module);
    BindFindings(module);
    BindPlate(module);
    BindLibrary(module);
    BindCalibration(module);
}
