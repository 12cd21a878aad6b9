#include "apps/viewer/logic/WellSnapshot.h"

#include <string>

namespace zorvane {

WellSnapshot EmptyWell(const Plate& plate) {
    WellSnapshot well;
    well.bottomColor = plate.DefaultWellColor();
    well.rimColor = plate.DefaultRimColor();
    return well;
}

WellSnapshot Capture(const Plate& plate, Integer wellNo) {
    const auto element = static_cast<std::size_t>(wellNo);
    const Surface& surface = plate.Elements();
    return {plate.IsDefined(wellNo),
            plate.IsSelected(wellNo),
            plate.GetVolume(wellNo),
            plate.Text(wellNo),
            plate.ErrorCode(wellNo),
            plate.WellAnnotation(wellNo),
            surface.WellBottom.at(element).fill,
            surface.WellRim.at(element).fill};
}

void Restore(Plate& plate, Integer wellNo, const WellSnapshot& well) {
    // Marking and selecting colour a well, and unmarking clears its error code: both come first.
    plate.IsDefined(wellNo, well.defined);
    plate.SelectWell(wellNo, well.selected);
    plate.SetVolume(wellNo, well.volume);
    plate.Text(wellNo, well.text);
    plate.ErrorCode(wellNo, well.errorCode);
    plate.WellAnnotation(wellNo, well.annotation);
    plate.CurrentWell(wellNo);
    plate.WellColor(std::to_string(well.bottomColor));
    plate.RimColor(std::to_string(well.rimColor));
}

} // namespace zorvane
