#pragma once

#include "control/Notifier.h"
#include "control/PlateFields.h"
#include "control/Surface.h"
#include "control/cmFocus.h"
#include "control/gestures/AreaSelection.h"
#include "control/gestures/DragOutline.h"
#include "control/gestures/HitTest.h"
#include "control/gestures/SelectionBox.h"
#include "control/layout/DrawnGrid.h"
#include "control/wells/Selection.h"
#include "control/wells/WellCursor.h"
#include "control/wells/WellRecords.h"
#include "runtime/Types.h"

namespace zorvane {

/// What the operator does with pointer and keys on the plate area: the rubber-band selection of an
/// area, the drag of the selected wells, the arrow keys. X and Y are drawing units in the plate
/// area.
class Gestures {
  public:
    /// What a gesture looks at.
    struct Sources {
        const PlateFields& fields;
        const WellRecords& wells;
        const WellElements& elements;
        const DrawnGrid& grid;
        const HitTest& hitTest;
    };
    /// What a gesture changes.
    struct Targets {
        WellCursor& cursor;
        Selection& selection;
        WellBlock& block;
        SelectionBox& box;
        cmFocus& focus;
        Surface& surface;
        Notifier& notifier;
    };
    Gestures(const Sources& from, const Targets& to);

    void Press(Integer button, Integer shift, Single x, Single y);
    void Move(Integer buttons, Single x, Single y);
    /// Error 11 while a pitch is 0. The gesture is over even when a step fails.
    void Release(Integer button, Integer shift, Single x, Single y);

    void KeyDown(Integer keyCode, Integer shift);
    void KeyUp(Integer shift);
    /// Moves the current well when the code is that of an arrow key; never wraps.
    void MoveByArrow(Integer code);

  private:
    class GestureEnd;

    void Anchor(const Rect& rim);
    void Continue(Single x, Single y);
    void StretchBand(Single x, Single y);
    void Hover(Single x, Single y);
    void DrawDragOutline(Single x, Single y) const;
    void EndArea(Integer columns, Integer rows);
    void EndDrag(Integer button, Integer shift, Single x, Single y, Integer columns, Integer rows);
    void SetPointer(PointerShape shape);
    void SetToolTip(const String& text);

    const Sources from_;
    const Targets to_;
    const DragOutline outline_;
    AreaSelection area_;
    // The centre of the pressed well's rim, or the corner of the last framed area, and where an
    // outline was drawn last.
    Single anchorX_ = 0;
    Single anchorY_ = 0;
    Single lastX_ = 0;
    Single lastY_ = 0;
    Boolean selectsArea_ = false;
    Boolean dragging_ = false;
};

} // namespace zorvane
