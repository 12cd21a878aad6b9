#include "platetext/RecordMissingValues.h"

#include "model/PropertyBlock.h"
#include "platetext/Keywords.h"
#include "runtime/Checked.h"
#include "support/TStringPair.h"

#include <memory>

namespace zorvane {

namespace {

/// A rim width that is read before any rim height gives both, so it comes first.
constexpr Keyword kMovedValues[] = {
    Keyword::XOffset,   Keyword::YOffset,    Keyword::Depth,      Keyword::RimWidth,
    Keyword::RimHeight, Keyword::RimCenterX, Keyword::RimCenterY,
};

} // namespace

// A sub-well without a line of its own is left alone: its values are those of the plate's lines.
void RecordMissingValues(cmPlate& plate) {
    for (const auto& subWell : *plate.CompoundWell()) {
        const PropertyBlock block(plate.Properties, subWell->WellName());
        if (!block.Exists()) continue;
        Checked last = Checked(block.first) + block.length - 1;
        for (const Keyword keyword : kMovedValues) {
            const String name = block.prefix + String(TraitsOf(keyword).name);
            if (plate.Properties.Find(name)) continue;
            plate.Properties.Add(
                std::make_shared<TStringPair>(name, SubWellValueText(*subWell, keyword)), last);
            last = last + 1;
        }
    }
}

} // namespace zorvane
