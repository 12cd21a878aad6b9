#pragma once

#include "control/Plate.h"
#include "runtime/Types.h"

#include <optional>

namespace zorvane {

/// The volume of a well. None where it is 0 and nobody has said so by marking the well as defined.
std::optional<Single> KnownVolume(const Plate& plate, Integer wellNo);

/// Colours for volumes: from light for the least volume to dark for the greatest, in steps that
/// look equally far apart. A volume of 0 is not part of the scale and is white.
class VolumeScale {
  public:
    VolumeScale() = default;
    /// The scale from the least to the greatest volume of one sub-well, 0 left out. Its position
    /// counts from 1.
    VolumeScale(const Plate& plate, Integer subWell);

    static constexpr Long kZeroColor = 0xFFFFFF;

    /// True when no well has a volume other than 0; every volume then has the darkest colour.
    bool Empty() const { return empty_; }
    Single Least() const { return least_; }
    Single Greatest() const { return greatest_; }

    /// The colour of a volume (0x00BBGGRR); those beyond the scale have the colour of its end.
    Long ColorOf(Single volume) const;
    /// The colour of a place on the scale, from 0 to 1.
    static Long ColorAt(Double place);

  private:
    void Include(Single volume);

    Single least_ = 0;
    Single greatest_ = 0;
    bool empty_ = true;
};

} // namespace zorvane
