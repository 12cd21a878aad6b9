#include "python/Names.h"

#include "control/WellNames.h"
#include "drawing/PlatePicture.h"
#include "runtime/RuntimeError.h"

namespace zorvane::python {

namespace {

/// A control names wells by the legends that it shows.
WellNames NamesOn(const cmPlate& plate) {
    PlatePicture picture(kDefaultScale);
    picture.Control().PlateClassText(plate.Text());
    return WellNames(picture.Control());
}

} // namespace

std::vector<String> WellNamesOf(const cmPlate& plate) {
    const WellNames names = NamesOn(plate);
    const Long count =
        Long{names.Rows()} * names.Cols() * static_cast<Long>(names.SubWells().size());
    std::vector<String> all;
    all.reserve(static_cast<std::size_t>(count));
    for (Long well = 0; well < count; ++well)
        all.push_back(names.Name(static_cast<Integer>(well)));
    return all;
}

Integer WellNumberOf(const cmPlate& plate, const String& name) {
    const std::optional<Integer> well = NamesOn(plate).Find(name);
    if (!well) Raise(ErrorNumber::SubscriptOutOfRange, "The plate has no well " + name);
    return *well;
}

} // namespace zorvane::python
