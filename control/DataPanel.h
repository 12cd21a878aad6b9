#pragma once

#include "control/ControlParts.h"
#include "runtime/Types.h"

namespace zorvane {

/// Opens or closes the details panel and gives the control the size that goes with it.
void ShowDataPanel(ControlParts parts, Boolean visible);

/// Lists the pages of the plate definition and shows the first.
void ListPages(ControlParts parts);

/// The page chooser has been set to a position: shows that page and enables the menu's commands
/// that make sense there.
void ChoosePage(ControlParts parts, Integer position);

/// Switches the panel between reading and editing.
void EnableEditing(ControlParts parts, Boolean on);

/// Takes the shown page into the plate definition, lays the plate out again and tells the host. The
/// panel is open on its first page afterwards.
void ApplyPage(ControlParts parts);

} // namespace zorvane
