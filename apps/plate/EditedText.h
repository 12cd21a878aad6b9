#pragma once

#include "model/cmPlate.h"

namespace zorvane {

/// The text of an edited plate. Fails when the reader would make another plate of it, and says
/// which of its lines comes back as another one.
String TextOf(cmPlate& plate);

} // namespace zorvane
