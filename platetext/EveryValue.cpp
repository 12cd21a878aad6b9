#include "platetext/EveryValue.h"

#include "runtime/Checked.h"
#include "runtime/NumberText.h"
#include "runtime/Text.h"
#include "support/TStringPair.h"

#include <memory>

namespace zorvane {

namespace {

struct Value {
    const char* keyword;
    Single (WellDetails::*read)() const;
};

constexpr Value kValues[] = {
    {"XOFFSET", &WellDetails::xOffset},       {"YOFFSET", &WellDetails::yOffset},
    {"DEPTH", &WellDetails::Depth},           {"RIMWIDTH", &WellDetails::RimWidth},
    {"RIMHEIGHT", &WellDetails::RimHeight},   {"RIMCENTERX", &WellDetails::RimCenterX},
    {"RIMCENTERY", &WellDetails::RimCenterY},
};

/// The last of the pairs that follow a sub-well's own line and belong to it; 0 without that line.
Integer EndOfBlock(const TStringPairList& list, const String& prefix) {
    Integer end = list.IndexOf(prefix + "Well");
    while (end > 0 && end < list.Count() &&
           StartsWithNoCase(list.Pair(Long{end} + 1)->Name(), prefix))
        end = Checked(end) + 1;
    return end;
}

} // namespace

// A sub-well without a line of its own is left alone: its values are those of the plate's lines.
void RecordEveryValue(cmPlate& plate) {
    for (const auto& subWell : *plate.CompoundWell()) {
        const String prefix = subWell->WellName() + ".";
        Integer end = EndOfBlock(plate.Properties, prefix);
        if (end == 0) continue;
        for (const Value& value : kValues) {
            if (plate.Properties.Find(prefix + value.keyword)) continue;
            const String text = FormatPicture(Double{((*subWell).*value.read)()}, "0.00");
            plate.Properties.Add(std::make_shared<TStringPair>(prefix + value.keyword, text), end);
            end = Checked(end) + 1;
        }
    }
}

} // namespace zorvane
