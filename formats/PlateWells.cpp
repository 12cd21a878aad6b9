#include "formats/PlateWells.h"

#include "runtime/NumberText.h"
#include "runtime/RuntimeError.h"

#include <cstdlib>

namespace zorvane {

namespace {

[[noreturn]] void Refuse(const String& reason) {
    Raise(ErrorNumber::InvalidProcedureCall, reason, "Zorvane::Formats");
}

ExactNumber NumberOf(Single value) {
    const auto number = ExactNumber::Of(value);
    if (!number) Refuse(SingleText(value) + " is too large for a length or a volume");
    return *number;
}

SourceWell AtOrigin(const WellDetails& subWell) {
    SourceWell well;
    well.x = NumberOf(subWell.xOffset()) + NumberOf(subWell.RimCenterX());
    well.y = NumberOf(subWell.yOffset()) + NumberOf(subWell.RimCenterY());
    well.sizeX = NumberOf(subWell.WellSizeX());
    well.sizeY = NumberOf(subWell.WellSizeY());
    well.depth = NumberOf(subWell.Depth());
    well.volume = NumberOf(subWell.MaxVolume());
    well.rimWidth = NumberOf(subWell.RimWidth());
    well.rimHeight = NumberOf(subWell.RimHeight());
    well.style = cmPlate::StyleText(subWell.Style());
    return well;
}

/// A coordinate that many pitches away.
ExactNumber Moved(const ExactNumber& from, const ExactNumber& pitch, Integer count) {
    const std::int64_t farthest = ExactNumber::kLargest * ExactNumber::kOne;
    if (count > 0 && std::abs(pitch.Units()) > farthest / count) Refuse("the plate is too large");
    return ExactNumber(from.Units() + pitch.Units() * count);
}

} // namespace

SourcePlate PlateWells(const cmPlate& plate) {
    if (std::int64_t{plate.Rows()} * plate.Cols() * plate.CompoundWell()->Count() > kMostWells)
        Refuse("a plate cannot have more than 32767 wells");
    SourcePlate source;
    source.name = plate.PlateName();
    source.length = NumberOf(plate.xOverall());
    source.width = NumberOf(plate.yOverall());
    source.height = NumberOf(plate.Height());
    source.shelfDepth = NumberOf(plate.ShelfDepth());
    for (const auto& tag : plate.Tags)
        source.tags.push_back(tag->Value());
    const ExactNumber xPitch = NumberOf(plate.XPitch());
    const ExactNumber yPitch = NumberOf(plate.YPitch());
    for (const auto& subWell : *plate.CompoundWell()) {
        SourceSubWell& wells = source.subWells.emplace_back();
        wells.name = subWell->WellName();
        const SourceWell first = AtOrigin(*subWell);
        for (Integer row = 0; row < plate.Rows(); ++row) {
            for (Integer col = 0; col < plate.Cols(); ++col) {
                SourceWell& well = wells.wells.emplace_back(first);
                well.position = NamedPosition(plate, row, col);
                well.x = Moved(first.x, xPitch, col);
                well.y = Moved(first.y, yPitch, row);
            }
        }
    }
    return source;
}

} // namespace zorvane
