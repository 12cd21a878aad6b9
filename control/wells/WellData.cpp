#include "control/wells/WellData.h"

namespace zorvane {

String WellData::Annotation(Integer wellNo) const {
    return wells_.IsShown(wellNo) ? elements_.Text(wellNo).caption : String();
}

void WellData::Annotation(Integer wellNo, const String& value) {
    if (wells_.IsShown(wellNo)) elements_.Annotate(wellNo, value);
}

Long WellData::Fill(Integer wellNo) const {
    return wells_.IsShown(wellNo) ? elements_.Bottom(wellNo).fill : 0;
}

void WellData::Fill(Integer wellNo, Long color) {
    if (wells_.IsShown(wellNo)) elements_.FillBottom(wellNo, color);
}

Long WellData::RimFill(Integer wellNo) const {
    return wells_.IsShown(wellNo) ? elements_.Rim(wellNo).fill : 0;
}

void WellData::RimFill(Integer wellNo, Long color) {
    if (wells_.IsShown(wellNo)) elements_.FillRim(wellNo, color);
}

void WellData::Define(Integer wellNo, Boolean value) {
    if (!wells_.IsShown(wellNo)) return;
    WellValues& well = wells_[wellNo];
    well.Defined = value;
    if (value) {
        elements_.FillBottom(wellNo, well.ErrorCode == 0 ? fields_.DefinedWellColor
                                                         : fields_.ErrorWellColor);
    } else {
        elements_.FillBottom(wellNo, elements_.defaultBottom);
        well.ErrorCode = 0;
    }
}

void WellData::Clear(Integer wellNo) {
    WellValues& well = wells_[wellNo];
    well.Defined = false;
    well.Volume = 0;
    Annotation(wellNo, "");
    elements_.FillBottom(wellNo, elements_.defaultBottom);
}

} // namespace zorvane
