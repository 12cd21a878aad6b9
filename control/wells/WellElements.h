#pragma once

#include "control/Notifier.h"
#include "control/Surface.h"
#include "runtime/Types.h"

namespace zorvane {

/// The elements of single wells by well number, and changes to them that the host is told of. Error
/// 9 for a number outside of the element lists.
class WellElements {
  public:
    WellElements(Surface& surface, Notifier& notifier) : surface_(surface), notifier_(notifier) {}

    const Shape& Rim(Integer wellNo) const;
    const Shape& Bottom(Integer wellNo) const;
    const Label& Text(Integer wellNo) const;

    void FillRim(Integer wellNo, Long color);
    void FillBottom(Integer wellNo, Long color);
    void Annotate(Integer wellNo, const String& caption);
    /// Keeps the initial volume's text with the bottom.
    void Tag(Integer wellNo, const String& text);

    Long defaultRim = kDefaultWellColor;    ///< of a well that is not selected
    Long defaultBottom = kDefaultWellColor; ///< of a well that is not marked as defined

  private:
    Surface& surface_;
    Notifier& notifier_;
};

} // namespace zorvane
