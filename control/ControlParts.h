#pragma once

#include "control/PlateEvents.h"
#include "control/PlateState.h"
#include "control/Surface.h"
#include "control/cmFocus.h"
#include "platform/HostSite.h"

namespace zorvane {

/// What the parts of one control work on. All of it belongs to the Plate, the site to its host.
struct ControlParts {
    PlateState& state;
    Surface& surface;
    cmFocus& focus;
    PlateEvents& events;
    HostSite& site;
};

} // namespace zorvane
