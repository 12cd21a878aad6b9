#include "python/Bindings.h"
#include "python/Text.h"

#include "library/DefinitionLimits.h"
#include "library/DiskFiles.h"
#include "library/LibraryDocument.h"
#include "library/ReadBack.h"
#include "platecheck/LibraryCheck.h"
#include "platetext/LibraryIndex.h"
#include "runtime/RuntimeError.h"

#include <pybind11/stl.h>
#include <pybind11/stl/filesystem.h>

#include <filesystem>
#include <memory>

namespace py = pybind11;

namespace zorvane::python {

namespace {

/// What a library file held, and the changes that have been made to that.
class Library {
  public:
    explicit Library(const std::filesystem::path& path)
        : document_(files_, path.string()), text_(document_.Text()) {
        CheckDefinitionSizes(text_.Bytes());
    }

    std::filesystem::path Path() const { return document_.Path(); }
    Text Bytes() const { return text_.Bytes(); }

    py::list Names() const {
        py::list names;
        for (const LibraryEntry& entry : ListLibraryText(text_.Bytes()).plates)
            if (entry.found) names.append(Text(entry.name));
        return names;
    }
    bool Has(const Text& name) const { return text_.Find(name.bytes).has_value(); }
    std::shared_ptr<cmPlate> Plate(const Text& name) const {
        if (!Has(name)) {
            PyErr_SetObject(PyExc_KeyError, py::cast(name).ptr());
            throw py::error_already_set();
        }
        return std::make_shared<cmPlate>(text_.LookedUp(name.bytes));
    }
    std::vector<Finding> Check() const { return CheckLibraryText(text_.Bytes(), document_.Path()); }

    void Replace(cmPlate& plate) { text_ = text_.WithReplaced(ReadableText(plate)); }
    void Append(cmPlate& plate) { text_ = text_.WithAppended(ReadableText(plate)); }
    void Save() { document_.Save(text_); }

  private:
    /// A plate's text, if all values can be read back from it.
    static String ReadableText(cmPlate& plate) {
        const String lost = ValueNotReadBack(plate);
        if (!lost.empty())
            Raise(ErrorNumber::EditNotPossible, "the plate could not be read back: " + lost);
        return plate.Text();
    }

    DiskFiles files_;
    LibraryDocument document_;
    LibraryText text_;
};

} // namespace

void BindLibrary(py::module_& module) {
    py::class_<Library>(module, "Library",
                        R"(A plate library file, as a mapping from names to plates.

Names are found in any letter case, the first plate of a name is meant, and nothing after a line
that ends every search is there, as for programs that use the library. Plates that are taken out of
it are copies: replace() and append() put them back, and save() writes the file.)")
        .def(py::init<const std::filesystem::path&>(), py::arg("path"),
             "Reads a library file; Error 53, 75 or 76 when it cannot be read, 6 when it has a "
             "plate of a\nsize that nobody means.")
        .def_property_readonly("path", &Library::Path, "The file, through any symbolic links.")
        .def_property_readonly("text", &Library::Bytes, "The text of the whole library.")
        .def("keys", &Library::Names, "The names of the plates, in the order of the file.")
        .def("__iter__", [](const Library& library) { return py::iter(library.Names()); })
        .def("__len__", [](const Library& library) { return library.Names().size(); })
        .def("__contains__", &Library::Has, py::arg("name"))
        .def(
            "__contains__", [](const Library&, const py::object&) { return false; },
            py::arg("name"))
        .def("__getitem__", &Library::Plate, py::arg("name"))
        .def("check", &Library::Check, "Everything wrong with the library, in the order of lines.")
        .def("replace", &Library::Replace, py::arg("plate"),
             R"(Puts a plate in place of the one of its name.

Nothing else in the library changes. Error 1102 when there is none, when a value of the plate could
not be read back, or when what is read after it would change.)")
        .def("append", &Library::Append, py::arg("plate"),
             "Adds a plate after the last one; Error 1102 when there is one of its name already.")
        .def("save", &Library::Save, R"(Writes the library to its file, in one step.

Error 1101 when the file no longer holds what was read from it, and nothing is written then. What
the file held is kept next to it, with "~" after its name.)")
        .def("__repr__", [](const Library& library) {
            return Text("<Library " + library.Path().string() + ">");
        });
}

} // namespace zorvane::python
