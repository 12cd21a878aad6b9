#pragma once

#include "control/panel/PanelElements.h"
#include "model/cmPlate.h"
#include "runtime/Types.h"

/// The pages of the details panel, numbered as in PanelElements.h.
namespace zorvane {

/// Fills the panel with a page of the plate definition, up to the place of the Apply button. Error
/// 9 for the page of a sub-well that the definition does not have.
void FillPage(PanelElements& panel, const cmPlate& plate, Integer page, Boolean editable);

/// Takes a page of the panel into the plate definition, which then reads itself again from its own
/// text: what a value means is for the reader to say. Error 91 when a row shows a property that is
/// no longer recorded.
void ReadPage(const PanelElements& panel, cmPlate& plate, Integer page);

/// The operator chose the style at cmbStyle's position: row 0 takes its name, the preview its
/// shapes.
void TakeStyle(PanelElements& panel);

} // namespace zorvane
