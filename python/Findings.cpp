#include "python/Bindings.h"
#include "python/Text.h"

#include "platecheck/LibraryCheck.h"

namespace py = pybind11;

namespace zorvane::python {

void BindFindings(py::module_& module) {
    py::class_<Finding>(module, "Finding",
                        "One thing wrong in a library, and the part of a line that it concerns.")
        .def_readonly("line", &Finding::line, "The number of the line, from 1.")
        .def_readonly("column", &Finding::column, "The first character concerned, from 1.")
        .def_readonly("length", &Finding::length, "How many characters are concerned.")
        .def_property_readonly(
            "severity",
            [](const Finding& finding) {
                return finding.severity == Severity::Error ? "error" : "warning";
            },
            "\"error\" where the reader stops or does not take what is written, else \"warning\".")
        .def_property_readonly(
            "message", [](const Finding& finding) { return Text(finding.message); },
            "What is wrong, in words.")
        .def_property_readonly(
            "line_text", [](const Finding& finding) { return Text(finding.lineText); },
            "The line in printable characters; of a long one the part around the column.")
        .def("__repr__", [](const Finding& finding) {
            return Text("<Finding " + std::to_string(finding.line) + ":" +
                        std::to_string(finding.column) + " " + finding.message + ">");
        });
}

} // namespace zorvane::python
