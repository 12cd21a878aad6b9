#pragma once

#include "runtime/Types.h"

namespace zorvane {

/// The reference page of the control's interface, docs/interface.md, in Markdown.
String ReferencePage();

} // namespace zorvane
