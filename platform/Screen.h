#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

namespace zorvane {

/// The size of one screen pixel in drawing units (twips, 1440 an inch); 15 on a screen of 96 dots
/// an inch. Read at the start of each layout and whenever an outline is begun. Must be above 0.
class ZORVANE_EXPORT Screen {
  public:
    virtual ~Screen() = default;
    virtual Single TwipsPerPixelX() const { return 15; }
    virtual Single TwipsPerPixelY() const { return 15; }
};

} // namespace zorvane
