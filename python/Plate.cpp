#include "python/Bindings.h"
#include "python/Decimal.h"
#include "python/Geometry.h"
#include "python/Names.h"
#include "python/Picture.h"
#include "python/SubWell.h"
#include "python/Text.h"

#include "control/PlateTypes.h"
#include "library/DefinitionEdits.h"
#include "library/DefinitionLimits.h"
#include "platetext/ReadResult.h"
#include "runtime/NumberText.h"
#include "runtime/Rounding.h"
#include "runtime/RuntimeError.h"

#include <pybind11/stl.h>

#include <memory>

namespace py = pybind11;

namespace zorvane::python {

namespace {

using PlateClass = py::class_<cmPlate, std::shared_ptr<cmPlate>>;

std::shared_ptr<cmPlate> Defined(const Text& text) {
    CheckDefinitionSizes(text.bytes);
    TextFile file;
    file.OpenText(text.bytes);
    auto plate = std::make_shared<cmPlate>();
    const Integer result = plate->ReadNextPlate(file);
    if (result == kStoppedAtFailedLine)
        Raise(ErrorNumber::EditNotPossible, "A line of the definition cannot be taken as written");
    if (result != kPlateRead || plate->PlateName().empty())
        Raise(ErrorNumber::EditNotPossible, "The text defines no plate");
    return plate;
}

/// A number of the plate, which is recorded with all its digits when it is set.
template <Single (cmPlate::*read)() const, void (cmPlate::*write)(Single)>
void AddNumber(PlateClass& plate, const char* name, Keyword keyword, const char* doc) {
    plate.def_property(
        name, [](const cmPlate& target) { return Decimal((target.*read)()); },
        [keyword](cmPlate& target, double value) {
            const Single number = ToSingle(value);
            const String digits = SingleText(number);
            (target.*write)(number);
            target.SetProperty(TraitsOf(keyword).name, digits);
        },
        doc);
}

void AddGrid(PlateClass& plate) {
    plate
        .def_property("rows", py::overload_cast<>(&cmPlate::Rows, py::const_),
                      py::overload_cast<Integer>(&cmPlate::Rows), "The number of rows.")
        .def_property("columns", py::overload_cast<>(&cmPlate::Cols, py::const_),
                      py::overload_cast<Integer>(&cmPlate::Cols), "The number of columns.")
        .def_property(
            "row_label", [](const cmPlate& target) { return Text(target.RowLabel()); },
            [](cmPlate& target, const Text& label) { target.RowLabel(label.bytes); },
            "The label of the first row: \"A\", \"a\" and \"1\" count upwards, others downwards.")
        .def_property(
            "column_label", [](const cmPlate& target) { return Text(target.ColumnLabel()); },
            [](cmPlate& target, const Text& label) { target.ColumnLabel(label.bytes); },
            "The label of the first column, likewise.");
    AddNumber<&cmPlate::XPitch, &cmPlate::XPitch>(plate, "x_pitch", Keyword::XPitch,
                                                  "The distance between columns, in mm.");
    AddNumber<&cmPlate::YPitch, &cmPlate::YPitch>(plate, "y_pitch", Keyword::YPitch,
                                                  "The distance between rows, in mm.");
    AddNumber<&cmPlate::xOverall, &cmPlate::xOverall>(plate, "x_overall", Keyword::XOverall,
                                                      "The length of the plate, in mm.");
    AddNumber<&cmPlate::yOverall, &cmPlate::yOverall>(plate, "y_overall", Keyword::YOverall,
                                                      "The width of the plate, in mm.");
    AddNumber<&cmPlate::Height, &cmPlate::Height>(plate, "height", Keyword::Height,
                                                  "The height of the plate, in mm.");
    AddNumber<&cmPlate::ShelfDepth, &cmPlate::ShelfDepth>(
        plate, "shelf_depth", Keyword::ShelfDepth,
        "The depth of the drop shelf, in mm; -0.001 for a definition that gives none.");
}

void AddText(PlateClass& plate) {
    plate
        .def_property_readonly(
            "name", [](const cmPlate& target) { return Text(target.PlateName()); },
            "The name, in the letter case of the definition.")
        .def_property_readonly(
            "text", [](const cmPlate& target) { return Text(target.Text()); },
            "The definition, as libraries have it.")
        .def_property_readonly(
            "comment", [](const cmPlate& target) { return Text(target.Comment); },
            "The comments of the definition, each ended by CR LF.")
        .def_property_readonly(
            "tags",
            [](const cmPlate& target) {
                py::list tags;
                for (const auto& tag : target.Tags)
                    tags.append(Text(tag->Value()));
                return tags;
            },
            "The tags of the plate.");
}

void AddGeometry(PlateClass& plate) {
    plate
        .def("centroids", &Centroids, R"(The centres of all positions over all their sub-wells.

An array of rows x columns x (x, y), in mm from the plate's top left corner with Y downwards. Error
9 for a plate without sub-wells, 6 for more wells than a plate can have.)")
        .def("envelopes", &Envelopes, R"(The boxes of all positions, rims included.

An array of rows x columns x (left, top, right, bottom), in mm. Errors as for centroids().)")
        .def("drops", &Drops, R"(The middles of all bottoms.

An array of sub-wells x rows x columns x (x, y, z), in mm; z is upwards from the plate's underside.
Reshaped to (-1, 3), its rows are in the order of well numbers. Error 6 for more wells than a plate
can have.)")
        .def("table", &DropTable, R"(A row for each well, in the order of well numbers.

A dict of columns: well (its name), sub_well, row and column from 0, x, y, z, size_x, size_y in mm.
pandas.DataFrame(plate.table()) takes it as it is.)");
}

void AddNames(PlateClass& plate) {
    plate
        .def(
            "well_names",
            [](const cmPlate& target) {
                py::list names;
                for (const String& name : WellNamesOf(target))
                    names.append(Text(name));
                return names;
            },
            R"(The names of all wells in the order of their numbers: "A1", or "A1.Drop1" where there
are several sub-wells.)")
        .def(
            "well_name",
            [](const cmPlate& target, Long number) { return Text(WellNameOf(target, number)); },
            py::arg("number"), "The name of a well; Error 9 for a number that is no well.")
        .def(
            "well_number",
            [](const cmPlate& target, const Text& name) {
                return WellNumberOf(target, name.bytes);
            },
            py::arg("name"), R"(The number of a well, by its name in any letter case.

A position stands for its first sub-well. Error 9 when there is no such well.)");
}

void AddEdits(PlateClass& plate) {
    plate.def("turn", &TurnPlate, "Turns the plate counter-clockwise by a quarter.")
        .def(
            "move",
            [](cmPlate& target, double dx, double dy, double dz) {
                MoveSubWells(target, ToSingle(dx), ToSingle(dy), ToSingle(dz));
            },
            py::arg("dx") = 0.0, py::arg("dy") = 0.0, py::arg("dz") = 0.0,
            R"(Moves all sub-wells by millimetres; a positive dz raises their bottoms.

What is moved is recorded with two decimals.)")
        .def(
            "rename_sub_well",
            [](cmPlate& target, const Text& name, const Text& newName) {
                RenameSubWell(target, name.bytes, newName.bytes);
            },
            py::arg("name"), py::arg("new_name"),
            "Gives a sub-well another name; Error 1102 where the plate does not allow it.")
        .def(
            "exchange_sub_wells",
            [](cmPlate& target, const Text& name, const Text& other) {
                ExchangeSubWells(target, name.bytes, other.bytes);
            },
            py::arg("name"), py::arg("other"), "Exchanges two sub-wells in their order.")
        .def(
            "remove_sub_well",
            [](cmPlate& target, const Text& name) { RemoveSubWell(target, name.bytes); },
            py::arg("name"), "Removes a sub-well.")
        .def(
            "add_sub_well",
            [](cmPlate& target, const Text& name, const Text& like) {
                AddSubWellLike(target, name.bytes, like.bytes);
            },
            py::arg("name"), py::arg("like"),
            "Adds a sub-well after the others, with the values of one that is there.");
}

void AddPictures(PlateClass& plate) {
    plate
        .def(
            "to_svg",
            [](const cmPlate& target, double scale, Integer width, Integer height,
               const py::iterable& selected, const py::dict& wells) {
                return Text(ToSvg(target, scale, width, height, selected, wells));
            },
            py::kw_only(), py::arg("scale") = kDefaultScale, py::arg("width") = 0,
            py::arg("height") = 0, py::arg("selected") = py::tuple(), py::arg("wells") = py::dict(),
            R"(A picture of the plate as the text of an SVG file.

scale is in drawing units (1/1440 inch) a millimetre; with width and height, in pixels, the plate is
fitted into that area instead. selected are names of wells. wells gives wells by name a colour
"#RRGGBB", or a pair of a colour, or None, and a caption. Error 9 for a well that is not there, 6
for a picture that is too large.)")
        .def("_repr_svg_", [](const cmPlate& target) {
            return Text(ToSvg(target, kDefaultScale, 0, 0, py::tuple(), py::dict()));
        });
}

} // namespace

void BindPlate(py::module_& module) {
    BindSubWell(module);
    PlateClass plate(module, "Plate",
                     R"(A plate type: a grid of positions, each with the same sub-wells.

Lengths are millimetres. What is set is recorded with all its digits and stands in text.)");
    plate
        .def(py::init(&Defined), py::arg("text"),
             "Reads the first definition in a text; Error 1102 when there is none.")
        .def_property_readonly("sub_wells", &SubWellsOf,
                               "The sub-wells by name, in their order. Names are as written.")
        .def("__repr__", [](const cmPlate& target) {
            return Text("<Plate " + target.PlateName() + ", " + std::to_string(target.Rows()) +
                        " x " + std::to_string(target.Cols()) + " positions of " +
                        std::to_string(target.CompoundWell()->Count()) + ">");
        });
    AddText(plate);
    AddGrid(plate);
    AddGeometry(plate);
    AddNames(plate);
    AddEdits(plate);
    AddPictures(plate);
}

} // namespace zorvane::python
