#include "apps/viewer/logic/WellSnapshot.h"

namespace zorvane::viewer {

WellSnapshot EmptyWell(const Plate& plate) {
    WellSnapshot well;
    well.bottomColor = plate.DefaultWellColor();
    well.rimColor = plate.DefaultRimColor();
    return well;
}

WellSnapshot Capture(const Plate& plate, Integer wellNo) {
    return {plate.IsDefined(wellNo), plate.IsSelected(wellNo), plate.GetVolume(wellNo),
            plate.Text(wellNo),      plate.ErrorCode(wellNo),  plate.WellAnnotation(wellNo),
            plate.WellFill(wellNo),  plate.RimFill(wellNo)};
}

void Restore(Plate& plate, Integer wellNo, const WellSnapshot& well) {
    // Marking and selecting colour a well, and unmarking clears its error code: both come first.
    plate.IsDefined(wellNo, well.defined);
    plate.SelectWell(wellNo, well.selected);
    plate.SetVolume(wellNo, well.volume);
    plate.Text(wellNo, well.text);
    plate.ErrorCode(wellNo, well.errorCode);
    plate.WellAnnotation(wellNo, well.annotation);
    plate.WellFill(wellNo, well.bottomColor);
    plate.RimFill(wellNo, well.rimColor);
}

} // namespace zorvane::viewer
