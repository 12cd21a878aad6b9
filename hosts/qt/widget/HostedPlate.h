#pragma once

#include "control/Plate.h"
#include "hosts/qt/QtSite.h"

namespace zorvane {

/// A control and the site that serves it. Shared with each step that is under way, because a host
/// may destroy the widget while a menu or a question of the control is open.
struct HostedPlate {
    explicit HostedPlate(QWidget& widget) : site(widget) {}

    QtSite site;
    Plate plate{site};
};

} // namespace zorvane
