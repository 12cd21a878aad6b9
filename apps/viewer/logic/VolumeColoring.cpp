#include "apps/viewer/logic/VolumeColoring.h"

#include <string>

namespace zorvane {

namespace {

Long BottomColor(const Plate& plate, Integer well) {
    return plate.Elements().WellBottom[static_cast<std::size_t>(well)].fill;
}

template <class ColorOfWell>
void PaintBottoms(Plate& plate, ColorOfWell colorOf) {
    const Integer current = plate.CurrentWell();
    for (Integer well = 0; well < plate.TotalWells(); ++well) {
        const Long color = colorOf(well);
        if (color == BottomColor(plate, well)) continue;
        plate.CurrentWell(well);
        plate.WellColor(std::to_string(color));
    }
    plate.CurrentWell(current);
}

} // namespace

void VolumeColoring::SetOn(bool on) {
    GiveBack();
    on_ = on;
    Color();
}

Long VolumeColoring::OwnColor(Integer wellNo) const {
    const auto index = static_cast<std::size_t>(wellNo);
    return index < own_.size() ? own_[index] : BottomColor(plate_, wellNo);
}

void VolumeColoring::Color() {
    scales_.clear();
    if (!on_) return;
    for (Integer subWell = 1; subWell <= plate_.SubWellCount; ++subWell)
        scales_.emplace_back(plate_, subWell);
    for (Integer well = 0; well < plate_.TotalWells(); ++well)
        own_.push_back(BottomColor(plate_, well));
    PaintBottoms(plate_, [this](Integer well) { return ColorOf(well); });
}

void VolumeColoring::GiveBack() {
    if (own_.empty()) return;
    PaintBottoms(plate_, [this](Integer well) { return own_[static_cast<std::size_t>(well)]; });
    own_.clear();
}

Long VolumeColoring::ColorOf(Integer wellNo) const {
    const auto volume = KnownVolume(plate_, wellNo);
    if (!volume) return plate_.DefaultWellColor();
    return scales_[static_cast<std::size_t>(wellNo / (plate_.Rows * plate_.Cols))].ColorOf(*volume);
}

} // namespace zorvane
