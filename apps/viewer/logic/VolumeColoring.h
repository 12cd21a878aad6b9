#pragma once

#include "control/Plate.h"
#include "runtime/Types.h"
#include "welldata/VolumeScale.h"

#include <utility>
#include <vector>

namespace zorvane::viewer {

/// Shows the volumes of a plate's wells as colours of their bottoms, and can give the wells their
/// own colours back.
class VolumeColoring {
  public:
    explicit VolumeColoring(Plate& plate) : plate_(plate) {}

    bool IsOn() const { return on_; }
    void SetOn(bool on);

    /// Runs a change of the wells with their own colours in place, and colours them again after it,
    /// whether it fails or not.
    template <class Change>
    void WithOwnColors(Change&& change) {
        const Pause pause(*this);
        std::forward<Change>(change)();
    }

    /// The bottom colour of a well without the colouring.
    Long OwnColor(Integer wellNo) const;
    /// The scales in use, one a sub-well; none while the colouring is off.
    const std::vector<VolumeScale>& Scales() const { return scales_; }

  private:
    struct Pause {
        explicit Pause(VolumeColoring& coloring) : coloring_(coloring) { coloring_.GiveBack(); }
        ~Pause() { coloring_.Color(); }
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;
        VolumeColoring& coloring_;
    };

    void Color();
    void GiveBack();
    Long ColorOf(Integer wellNo) const;

    Plate& plate_;
    bool on_ = false;
    std::vector<VolumeScale> scales_;
    std::vector<Long> own_; // while the wells show their volumes
};

} // namespace zorvane::viewer
