#include "control/PointerGestures.h"

#include "control/AreaSelection.h"
#include "control/WellElements.h"
#include "control/WellSelection.h"
#include "runtime/Checked.h"
#include "runtime/Rounding.h"

#include <algorithm>
#include <cmath>

namespace zorvane {

namespace {

/// Ends the gesture when it goes out of scope, whatever happened in between.
class GestureEnd {
  public:
    explicit GestureEnd(PlateState& state) : state_(state) {}
    ~GestureEnd() {
        state_.Dragging = false;
        state_.AreaSelect = false;
    }
    GestureEnd(const GestureEnd&) = delete;
    GestureEnd& operator=(const GestureEnd&) = delete;

  private:
    PlateState& state_;
};

Integer WholePitches(Single from, Single to, Integer pitch) {
    if (pitch == 0) Raise(ErrorNumber::DivisionByZero);
    return ToInteger((Double{to} - from) / pitch);
}

void SetPointer(ControlParts parts, PointerShape shape) {
    if (parts.surface.platePointer == shape) return;
    parts.surface.platePointer = shape;
    parts.site.SetPointer(shape);
}

void SetToolTip(ControlParts parts, const String& text) {
    if (parts.surface.plateToolTip == text) return;
    parts.surface.plateToolTip = text;
    parts.site.SetToolTip(text);
}

/// Outlines every selected well as if the gesture's anchor stood at (x, y); a second time erases.
void DrawDragOutline(ControlParts parts, Single x, Single y) {
    parts.site.HandOut();
    const Single dx = x - parts.state.DragAnchorX;
    const Single dy = y - parts.state.DragAnchorY;
    for (Integer i = 0; i < parts.state.TotalWells; ++i) {
        if (!parts.state.Wells[i].Selected) continue;
        const Shape& rim = RimOf(parts.surface, i);
        const Rect box = rim.box.Moved(dx, dy);
        // Every kind but the circle is outlined as a rectangle, ovals included.
        if (rim.kind == ShapeKind::Circle) {
            parts.focus.DrawEllipse(box.left, box.top, box.Right(), box.Bottom());
        } else {
            parts.focus.DrawRectangle(box.left, box.top, box.Right(), box.Bottom());
        }
    }
}

void AnchorGesture(ControlParts parts, Integer wellNo) {
    PlateState& state = parts.state;
    const Rect& rim = RimOf(parts.surface, wellNo).box;
    state.DragAnchorX = rim.left + rim.width / 2;
    state.DragAnchorY = rim.top + rim.height / 2;
    state.DragLastX = state.DragAnchorX;
    state.DragLastY = state.DragAnchorY;
    parts.focus.hwnd(parts.site.PlateWindow());
    parts.focus.Enabled(true);
    parts.focus.DragStart(state.DragAnchorX, state.DragAnchorY);
}

void StretchBand(ControlParts parts, Single x, Single y) {
    const PlateState& state = parts.state;
    const Boolean beyondAnchor = std::abs(x - state.DragAnchorX) >= state.ColumnPitch ||
                                 std::abs(y - state.DragAnchorY) >= state.RowPitch;
    parts.site.HandOut();
    if (beyondAnchor) parts.focus.DragPosition(x, y);
    parts.focus.RectangleVisible(beyondAnchor);
}

void ContinueGesture(ControlParts parts, Single x, Single y) {
    PlateState& state = parts.state;
    const Boolean moved = std::abs(x - state.DragLastX) >= 2 * state.PixelWidth ||
                          std::abs(y - state.DragLastY) >= 2 * state.PixelHeight;
    if (!moved) return;
    if (state.MultipleSelect && state.AreaSelect) {
        StretchBand(parts, x, y);
    } else if (state.Dragging) {
        DrawDragOutline(parts, state.DragLastX, state.DragLastY);
        DrawDragOutline(parts, x, y);
    }
    state.DragLastX = x;
    state.DragLastY = y;
}

void Hover(ControlParts parts, Single x, Single y) {
    PlateState& state = parts.state;
    const Integer wellNo = WellAt(state, parts.surface, x, y);
    SetToolTip(parts, wellNo < 0 ? String() : state.Wells[wellNo].Text);
    const Boolean movable = state.DragDrop && wellNo >= 0 && state.Wells[wellNo].Selected;
    SetPointer(parts, movable ? PointerShape::MoveArrows : PointerShape::Standard);
}

void EndDrag(ControlParts parts, Integer button, Integer shift, Single x, Single y, Integer columns,
             Integer rows) {
    PlateState& state = parts.state;
    DrawDragOutline(parts, state.DragLastX, state.DragLastY);
    if (columns == 0 && rows == 0) {
        SetCurrentWell(state, WellAt(state, parts.surface, x, y));
        SetWell(parts, state.Row, state.Col, "", wsSingle);
        return;
    }
    Outline& select = parts.surface.SelectBox;
    const Rect before = select.box;
    const Integer dx = Checked(columns) * state.ColumnPitch;
    const Integer dy = Checked(rows) * state.RowPitch;
    select.box = before.Moved(dx, dy);
    if (select.visible) RepaintInPlate(parts, Union(before, select.box));
    parts.site.Raise([&](PlateObserver& host) { host.DragMove(button, shift, columns, rows); });
}

} // namespace

void PressOnPlate(ControlParts parts, Integer button, Integer shift, Single x, Single y) {
    PlateState& state = parts.state;
    if (!parts.surface.cmdData.enabled) return;
    parts.site.TakeFocus();

    const Integer wellNo = WellAt(state, parts.surface, x, y);
    if (button != kLeftButton || wellNo < 0) {
        parts.site.Raise([&](PlateObserver& host) { host.MouseDown(button, shift, x, y); });
        return;
    }
    AnchorGesture(parts, wellNo);
    if (state.Wells[wellNo].Selected && state.DragDrop) {
        state.Dragging = true;
        DrawDragOutline(parts, state.DragLastX, state.DragLastY);
        return;
    }
    const Boolean add = state.MultipleSelect && (shift & kCtrlKey) != 0;
    SetCurrentWell(state, wellNo);
    SetWell(parts, state.Row, state.Col, SubWellName(state), add ? wsAddToSelection : wsSingle);
    HideSelectBox(parts);
    state.AreaSelect = state.MultipleSelect;
}

void MoveOverPlate(ControlParts parts, Integer buttons, Single x, Single y) {
    if ((buttons & kLeftButton) != 0) {
        ContinueGesture(parts, x, y);
    } else {
        Hover(parts, x, y);
    }
}

void ReleaseOnPlate(ControlParts parts, Integer button, Integer shift, Single x, Single y) {
    PlateState& state = parts.state;
    const GestureEnd end(state);
    const Integer columns = WholePitches(state.DragAnchorX, x, state.ColumnPitch);
    const Integer rows = WholePitches(state.DragAnchorY, y, state.RowPitch);
    if (state.AreaSelect) {
        SelectArea(parts, columns, rows);
    } else if (state.Dragging) {
        EndDrag(parts, button, shift, x, y, columns, rows);
    } else if (parts.surface.cmdData.enabled) {
        parts.site.Raise([&](PlateObserver& host) { host.MouseUp(button, shift, x, y); });
    }
}

void PressKey(ControlParts parts, Integer keyCode, Integer shift) {
    if (!parts.state.Dragging) {
        MoveByArrow(parts.state, keyCode);
    } else if ((shift & kCtrlKey) != 0) {
        SetPointer(parts, PointerShape::Custom);
    }
}

void ReleaseKey(ControlParts parts, Integer shift) {
    if (parts.state.Dragging && (shift & kCtrlKey) == 0)
        SetPointer(parts, PointerShape::MoveArrows);
}

void MoveByArrow(PlateState& state, Integer code) {
    if (code == kUpArrow && state.Row >= 1) SetRow(state, Checked(state.Row) - 1);
    if (code == kDownArrow && state.Row < Checked(state.Rows) - 1)
        SetRow(state, Checked(state.Row) + 1);
    if (code == kLeftArrow && state.Col >= 1) SetCol(state, Checked(state.Col) - 1);
    if (code == kRightArrow && state.Col < Checked(state.Cols) - 1)
        SetCol(state, Checked(state.Col) + 1);
}

} // namespace zorvane
