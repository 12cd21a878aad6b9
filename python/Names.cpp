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

Long CountOf(const WellNames& names) {
    return Long{names.Rows()} * names.Cols() * static_cast<Long>(names.SubWells().size());
}

} // namespace

std::vector<String> WellNamesOf(const cmPlate& plate) {
    const WellNames names = NamesOn(plate);
    std::vector<String> all;
    all.reserve(static_cast<std::size_t>(CountOf(names)));
    for (Long well = 0; well < CountOf(names); ++well)
        all.push_back(names.Name(static_cast<Integer>(well)));
    return all;
}

String WellNameOf(const cmPlate& plate, Long number) {
    const WellNames names = NamesOn(plate);
    if (number < 0 || number >= CountOf(names)) Raise(ErrorNumber::SubscriptOutOfRange);
    return names.Name(static_cast<Integer>(number));
}

Integer WellNumberOf(const cmPlate& plate, const String& name) {
    const std::optional<Integer> well = NamesOn(plate).Find(name);
    if (!well) Raise(ErrorNumber::SubscriptOutOfRange, "The plate has no well " + name);
    return *well;
}

} // namespace zorvane::python
