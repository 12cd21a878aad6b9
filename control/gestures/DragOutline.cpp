#include "control/gestures/DragOutline.h"

namespace zorvane {

void DragOutline::Draw(Single dx, Single dy) const {
    notifier_.HandOut();
    for (Integer i = 0; i < wells_.Total(); ++i) {
        if (!wells_[i].Selected) continue;
        const Shape& rim = elements_.Rim(i);
        const Rect box = rim.box.Moved(dx, dy);
        // Every kind but the circle is outlined as a rectangle, ovals included.
        if (rim.kind == ShapeKind::Circle) {
            focus_.DrawEllipse(box.left, box.top, box.Right(), box.Bottom());
        } else {
            focus_.DrawRectangle(box.left, box.top, box.Right(), box.Bottom());
        }
    }
}

} // namespace zorvane
