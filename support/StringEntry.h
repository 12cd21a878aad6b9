#pragma once

#include "runtime/Types.h"

namespace zorvane {

/// One text of a StringList.
struct StringEntry {
    String Text;
};

} // namespace zorvane
