#include "apps/viewer/logic/VolumeColoring.h"

#include "control/WellGrid.h"

namespace zorvane::viewer {

void VolumeColoring::SetOn(bool on) {
    GiveBack();
    on_ = on;
    Color();
}

Long VolumeColoring::OwnColor(Integer wellNo) const {
    const auto index = static_cast<std::size_t>(wellNo);
    return index < own_.size() ? own_[index] : plate_.WellFill(wellNo);
}

void VolumeColoring::Color() {
    scales_.clear();
    if (!on_) return;
    for (Integer subWell = 1; subWell <= plate_.SubWellCount; ++subWell)
        scales_.emplace_back(plate_, subWell);
    for (Integer well = 0; well < plate_.TotalWells(); ++well) {
        own_.push_back(plate_.WellFill(well));
        plate_.WellFill(well, ColorOf(well));
    }
}

void VolumeColoring::GiveBack() {
    for (std::size_t well = 0; well < own_.size(); ++well)
        plate_.WellFill(static_cast<Integer>(well), own_[well]);
    own_.clear();
}

Long VolumeColoring::ColorOf(Integer wellNo) const {
    const auto volume = KnownVolume(plate_, wellNo);
    if (!volume) return plate_.DefaultWellColor();
    const WellPlace place = WellGrid{plate_.Rows, plate_.Cols}.PlaceOf(wellNo);
    return scales_[static_cast<std::size_t>(place.subWell - 1)].ColorOf(*volume);
}

} // namespace zorvane::viewer
