#pragma once

#include "control/Notifier.h"
#include "control/PlateState.h"
#include "control/Surface.h"
#include "control/cmFocus.h"

namespace zorvane {

/// What the parts of one control work on. All of it belongs to the Plate.
struct ControlParts {
    PlateState& state;
    Surface& surface;
    cmFocus& focus;
    Notifier& site;
};

} // namespace zorvane
