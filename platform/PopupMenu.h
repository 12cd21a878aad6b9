#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

#include <vector>

namespace zorvane {

/// One entry of a pop-up menu; "&" in the caption marks its access key.
struct MenuEntry {
    String caption;
    Boolean enabled = true;
};

/// Shows a menu at the pointer.
class ZORVANE_EXPORT PopupMenu {
  public:
    virtual ~PopupMenu() = default;

    /// Called when the operator asks for a menu; the entries live for the duration of the call.
    /// Returns the chosen entry counted from 0, or -1 when the menu was dismissed, which is also
    /// what a host without an operator answers. A disabled entry is never chosen.
    virtual Integer Choose(const std::vector<MenuEntry>& /*entries*/) { return -1; }
};

} // namespace zorvane
