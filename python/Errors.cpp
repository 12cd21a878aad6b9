#include "python/Bindings.h"
#include "python/Text.h"

#include "platform/Process.h"
#include "platform/memory/MemoryProcess.h"
#include "runtime/RuntimeError.h"

namespace py = pybind11;

namespace zorvane::python {

namespace {

/// What the core would show to an operator becomes a warning of Python.
class Warnings final : public MessageDisplay {
  public:
    void Show(const Message& message) override {
        if (PyErr_WarnEx(PyExc_UserWarning, message.prompt.c_str(), 1) != 0)
            PyErr_WriteUnraisable(nullptr); // a warning that is an error cannot leave from here
    }
};

class PythonProcess final : public Process {
  public:
    MessageDisplay& Messages() override { return warnings_; }
    Screen& TheScreen() override { return memory_.TheScreen(); }
    Registry& TheRegistry() override { return memory_.TheRegistry(); }

  private:
    Warnings warnings_;
    MemoryProcess memory_;
};

py::handle errorClass;

void RaiseInPython(const RuntimeError& error) {
    const py::object description = py::cast(Text(error.Description()));
    const py::object raised = errorClass(description);
    raised.attr("number") = error.Number();
    raised.attr("source") = Text(error.Source());
    raised.attr("description") = description;
    PyErr_SetObject(errorClass.ptr(), raised.ptr());
}

} // namespace

void BindErrors(py::module_& module) {
    errorClass = PyErr_NewExceptionWithDoc(
        "zorvane.Error",
        "A run-time error of the plate control: its number, the source that raised it, and a\n"
        "description in words.",
        nullptr, nullptr);
    if (!errorClass) throw py::error_already_set();
    module.attr("Error") = errorClass;
    py::register_exception_translator([](std::exception_ptr thrown) {
        try {
            std::rethrow_exception(std::move(thrown));
        } catch (const RuntimeError& error) {
            RaiseInPython(error);
        }
    });
    static PythonProcess process;
    DefaultProcess(process);
}

} // namespace zorvane::python
