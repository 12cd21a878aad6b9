#pragma once

#include "control/Plate.h"
#include "runtime/Types.h"

namespace zorvane::viewer {

/// Everything that a control keeps for one well on behalf of its host.
struct WellSnapshot {
    Boolean defined = false;
    Boolean selected = false;
    Single volume = 0;
    String text;
    Integer errorCode = 0;
    String annotation;
    Long bottomColor = 0;
    Long rimColor = 0;

    friend bool operator==(const WellSnapshot&, const WellSnapshot&) = default;
};

/// What an untouched well holds.
WellSnapshot EmptyWell(const Plate& plate);

WellSnapshot Capture(const Plate& plate, Integer wellNo);

/// Writes a snapshot to a well. The count of selected wells stays as it is.
void Restore(Plate& plate, Integer wellNo, const WellSnapshot& well);

} // namespace zorvane::viewer
