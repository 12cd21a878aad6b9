#include "control/gestures/Gestures.h"

#include "runtime/Checked.h"
#include "runtime/Rounding.h"

#include <cmath>
#include <utility>

namespace zorvane {

namespace {

Integer WholePitches(Single from, Single to, Integer pitch) {
    if (pitch == 0) Raise(ErrorNumber::DivisionByZero);
    return ToInteger((Double{to} - from) / pitch);
}

} // namespace

/// Ends the gesture when it goes out of scope, whatever happened in between.
class Gestures::GestureEnd {
  public:
    explicit GestureEnd(Gestures& gestures) : gestures_(gestures) {}
    ~GestureEnd() { gestures_.dragging_ = gestures_.selectsArea_ = false; }
    GestureEnd(const GestureEnd&) = delete;
    GestureEnd& operator=(const GestureEnd&) = delete;

  private:
    Gestures& gestures_;
};

Gestures::Gestures(const Sources& from, const Targets& to)
    : from_(from), to_(to), outline_(from.wells, from.elements, to.focus, to.notifier),
      area_(from.fields, from.elements, to.cursor, to.block, to.selection, to.box) {}

void Gestures::Press(Integer button, Integer shift, Single x, Single y) {
    if (!to_.surface.cmdData.enabled) return;
    to_.notifier.TakeFocus();

    const Integer wellNo = from_.hitTest.WellAt(x, y);
    if (button != kLeftButton || wellNo < 0) {
        to_.notifier.Raise([&](PlateObserver& host) { host.MouseDown(button, shift, x, y); });
        return;
    }
    Anchor(from_.elements.Rim(wellNo).box);
    if (to_.selection.Has(wellNo) && from_.fields.DragDrop) {
        dragging_ = true;
        DrawDragOutline(lastX_, lastY_);
        return;
    }
    const Boolean add = from_.fields.MultipleSelect && (shift & kCtrlKey) != 0;
    WellCursor& cursor = to_.cursor;
    cursor.Number(wellNo);
    to_.selection.SetWell(cursor.Row(), cursor.Col(), cursor.SubWellName(),
                          add ? wsAddToSelection : wsSingle);
    to_.box.Hide();
    selectsArea_ = from_.fields.MultipleSelect;
}

void Gestures::Anchor(const Rect& rim) {
    anchorX_ = lastX_ = rim.left + rim.width / 2;
    anchorY_ = lastY_ = rim.top + rim.height / 2;
    to_.notifier.HandOut();
    to_.focus.hwnd(to_.notifier.PlateWindow());
    to_.focus.Enabled(true);
    to_.focus.DragStart(anchorX_, anchorY_);
}

void Gestures::Move(Integer buttons, Single x, Single y) {
    if ((buttons & kLeftButton) != 0) {
        Continue(x, y);
    } else {
        Hover(x, y);
    }
}

void Gestures::Continue(Single x, Single y) {
    const Boolean moved = std::abs(x - lastX_) >= 2 * from_.grid.pixelWidth ||
                          std::abs(y - lastY_) >= 2 * from_.grid.pixelHeight;
    if (!moved) return;
    if (from_.fields.MultipleSelect && selectsArea_) {
        StretchBand(x, y);
    } else if (dragging_) {
        DrawDragOutline(lastX_, lastY_);
        DrawDragOutline(x, y);
    }
    lastX_ = x;
    lastY_ = y;
}

void Gestures::StretchBand(Single x, Single y) {
    const Boolean beyondAnchor = std::abs(x - anchorX_) >= from_.grid.columnPitch ||
                                 std::abs(y - anchorY_) >= from_.grid.rowPitch;
    to_.notifier.HandOut();
    if (beyondAnchor) to_.focus.DragPosition(x, y);
    to_.focus.RectangleVisible(beyondAnchor);
}

void Gestures::DrawDragOutline(Single x, Single y) const {
    outline_.Draw(x - anchorX_, y - anchorY_);
}

void Gestures::Hover(Single x, Single y) {
    const Integer wellNo = from_.hitTest.WellAt(x, y);
    SetToolTip(wellNo < 0 ? String() : from_.wells[wellNo].Text);
    const Boolean movable = from_.fields.DragDrop && wellNo >= 0 && to_.selection.Has(wellNo);
    SetPointer(movable ? PointerShape::MoveArrows : PointerShape::Standard);
}

void Gestures::SetPointer(PointerShape shape) {
    if (std::exchange(to_.surface.platePointer, shape) != shape) to_.notifier.SetPointer(shape);
}

void Gestures::SetToolTip(const String& text) {
    if (std::exchange(to_.surface.plateToolTip, text) != text) to_.notifier.SetToolTip(text);
}

void Gestures::Release(Integer button, Integer shift, Single x, Single y) {
    const GestureEnd end(*this);
    const Integer columns = WholePitches(anchorX_, x, from_.grid.columnPitch);
    const Integer rows = WholePitches(anchorY_, y, from_.grid.rowPitch);
    if (selectsArea_) {
        EndArea(columns, rows);
    } else if (dragging_) {
        EndDrag(button, shift, x, y, columns, rows);
    } else if (to_.surface.cmdData.enabled) {
        to_.notifier.Raise([&](PlateObserver& host) { host.MouseUp(button, shift, x, y); });
    }
}

void Gestures::EndArea(Integer columns, Integer rows) {
    to_.notifier.HandOut();
    to_.focus.RectangleVisible(false);
    area_.Select(columns, rows);
    if (to_.block.IsSingleWell()) {
        to_.notifier.Raise([this](PlateObserver& host) { host.SelectWell(to_.cursor.Number()); });
        return;
    }
    if (to_.box.Enabled()) {
        anchorX_ = to_.box.Box().left;
        anchorY_ = to_.box.Box().top;
    }
    to_.notifier.Raise([](PlateObserver& host) { host.SelectMultipleWells(); });
}

void Gestures::EndDrag(Integer button, Integer shift, Single x, Single y, Integer columns,
                       Integer rows) {
    DrawDragOutline(lastX_, lastY_);
    if (columns == 0 && rows == 0) {
        to_.cursor.Number(from_.hitTest.WellAt(x, y));
        to_.selection.SetWell(to_.cursor.Row(), to_.cursor.Col(), "", wsSingle);
        return;
    }
    const Integer dx = Checked(columns) * from_.grid.columnPitch;
    const Integer dy = Checked(rows) * from_.grid.rowPitch;
    to_.box.Move(dx, dy);
    to_.notifier.Raise([&](PlateObserver& host) { host.DragMove(button, shift, columns, rows); });
}

void Gestures::KeyDown(Integer keyCode, Integer shift) {
    if (!dragging_) {
        MoveByArrow(keyCode);
    } else if ((shift & kCtrlKey) != 0) {
        SetPointer(PointerShape::Custom);
    }
}

void Gestures::KeyUp(Integer shift) {
    if (dragging_ && (shift & kCtrlKey) == 0) SetPointer(PointerShape::MoveArrows);
}

void Gestures::MoveByArrow(Integer code) {
    WellCursor& cursor = to_.cursor;
    if (code == kUpArrow && cursor.Row() >= 1) cursor.Row(Checked(cursor.Row()) - 1);
    if (code == kDownArrow && cursor.Row() < Checked(from_.fields.Rows) - 1)
        cursor.Row(Checked(cursor.Row()) + 1);
    if (code == kLeftArrow && cursor.Col() >= 1) cursor.Col(Checked(cursor.Col()) - 1);
    if (code == kRightArrow && cursor.Col() < Checked(from_.fields.Cols) - 1)
        cursor.Col(Checked(cursor.Col()) + 1);
}

} // namespace zorvane
