#pragma once

#include "control/ControlParts.h"
#include "runtime/Types.h"

namespace zorvane {

/// Fills the details panel with a page of the plate definition and fits its height to it. Error 9
/// for the page of a sub-well that the definition does not have.
void FillPage(ControlParts parts, Integer page);

/// Takes a page of the details panel into the plate definition, which then reads itself anew from
/// its own text: what a value means is the reader's to say. Error 91 when a row shows a property
/// that is no longer recorded.
void ReadPage(ControlParts parts, Integer page);

/// The operator chose the style at cmbStyle's position: row 0 takes its name, the preview its
/// shapes.
void TakeStyle(PanelElements& panel);

} // namespace zorvane
