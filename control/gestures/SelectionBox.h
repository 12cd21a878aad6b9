#pragma once

#include "control/Elements.h"
#include "control/Notifier.h"
#include "runtime/Geometry.h"
#include "runtime/Types.h"

namespace zorvane {

/// The outline that frames the area selected last, for hosts that want it.
class SelectionBox {
  public:
    SelectionBox(Outline& outline, Notifier& notifier) : outline_(outline), notifier_(notifier) {}

    /// Whether a selected area is framed; disabling hides the frame.
    Boolean Enabled() const { return enabled_; }
    void Enabled(Boolean value) {
        enabled_ = value;
        if (!value) Hide();
    }

    const Rect& Box() const { return outline_.box; }
    void Show(const Rect& box) {
        outline_ = {box, true};
        notifier_.RepaintInPlate(box);
    }
    void Hide() {
        if (outline_.visible) notifier_.RepaintInPlate(outline_.box);
        outline_.visible = false;
    }
    /// Moves it, also while it is hidden.
    void Move(Single dx, Single dy) {
        const Rect before = outline_.box;
        outline_.box = before.Moved(dx, dy);
        if (outline_.visible) notifier_.RepaintInPlate(Union(before, outline_.box));
    }

  private:
    Outline& outline_;
    Notifier& notifier_;
    Boolean enabled_ = false;
};

} // namespace zorvane
