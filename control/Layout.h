#pragma once

#include "control/ControlParts.h"
#include "runtime/Types.h"

namespace zorvane {

/// Rebuilds the drawing from the plate definition. With `fullReset` every well also gets its
/// default colours back, its caption emptied and its selection cleared.
///
/// Error 6 when sizes, positions or well counts do not fit 16 bits, 11 when a control of fixed size
/// shows a plate of no size; what was laid out so far stays, and the plate area stays hidden.
void LayoutPlate(ControlParts parts, Boolean fullReset);

} // namespace zorvane
