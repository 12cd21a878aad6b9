#include "python/SubWell.h"

#include "python/Decimal.h"
#include "python/Text.h"

#include "library/DefinitionEdits.h"
#include "runtime/Rounding.h"

namespace py = pybind11;

namespace zorvane::python {

namespace {

struct SubWell {
    std::shared_ptr<cmPlate> plate;
    std::shared_ptr<WellDetails> well;
};

struct NumberTraits {
    const char* name;
    Keyword keyword;
    const char* doc;
};

constexpr NumberTraits kNumbers[] = {
    {"x_offset", Keyword::XOffset, "Where it lies at the first position, in mm."},
    {"y_offset", Keyword::YOffset, "The same downwards."},
    {"depth", Keyword::Depth, "How far the bottom is below the plate's top, in mm."},
    {"size_x", Keyword::WellSizeX,
     "The extent of the bottom, for a round one its diameter, in mm."},
    {"size_y", Keyword::WellSizeY, "The same downwards."},
    {"rim_width", Keyword::RimWidth, "The thickness of the rim to the sides, in mm."},
    {"rim_height", Keyword::RimHeight, "The thickness of the rim above and below, in mm."},
    {"rim_center_x", Keyword::RimCenterX, "How far its middle is from there, in mm."},
    {"rim_center_y", Keyword::RimCenterY, "The same downwards."},
    {"max_volume", Keyword::Volume, "The capacity."},
};

} // namespace

void BindSubWell(py::module_& module) {
    py::class_<SubWell> subWell(module, "SubWell",
                                "One cavity that every position of a plate has.\n\n"
                                "What is set is recorded in the plate; Error 1102 where it has no "
                                "lines of its own there.");
    subWell
        .def_property_readonly(
            "name", [](const SubWell& self) { return Text(self.well->WellName()); }, "The name.")
        .def_property(
            "style", [](const SubWell& self) { return cmPlate::StyleText(self.well->Style()); },
            [](const SubWell& self, const Text& style) {
                SetSubWellStyle(*self.plate, self.well->WellName(), style.bytes);
            },
            "How it is drawn: ROUND, CCSHELF, PILLAR or SQUARE.")
        .def("__repr__", [](const SubWell& self) {
            return Text("<SubWell " + self.well->WellName() + " of " + self.plate->PlateName() +
                        ">");
        });
    for (const NumberTraits& number : kNumbers) {
        const Keyword keyword = number.keyword;
        subWell.def_property(
            number.name,
            [keyword](const SubWell& self) {
                return Decimal(((*self.well).*TraitsOf(keyword).number)());
            },
            [keyword](const SubWell& self, double value) {
                SetSubWellNumber(*self.plate, self.well->WellName(), keyword, ToSingle(value));
            },
            number.doc);
    }
}

py::dict SubWellsOf(const std::shared_ptr<cmPlate>& plate) {
    py::dict subWells;
    for (const auto& well : *plate->CompoundWell())
        subWells[py::cast(Text(well->WellName()))] = SubWell{plate, well};
    return subWells;
}

} // namespace zorvane::python
