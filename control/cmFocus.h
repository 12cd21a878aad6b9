#pragma once

#include "platform/DrawingContext.h"
#include "platform/HostSite.h"
#include "runtime/Export.h"
#include "runtime/Types.h"

namespace zorvane {

/// Draws temporary outlines on a window without disturbing what is under them: drawing the same
/// outline twice erases it. Coordinates are drawing units.
///
/// While enabled and visible, exactly one copy of the tracked rectangle is on the window. Usual
/// order: hwnd, Enabled True, DragStart at the press, RectangleVisible True and DragPosition as the
/// pointer moves, RectangleVisible False at the end; Refresh after each repaint of the window.
class ZORVANE_EXPORT cmFocus {
  public:
    explicit cmFocus(HostSite& site);
    /// Deletes the pen and releases a context still held.
    ~cmFocus();
    cmFocus(const cmFocus&) = delete;
    cmFocus& operator=(const cmFocus&) = delete;

    /// Moves the end corner.
    void DragPosition(Single X, Single Y);
    /// Moves the start corner.
    void DragStart(Single MouseDownX, Single MouseDownY);

    /// True obtains the window's drawing context and sets it up to invert; False releases it
    /// without erasing a visible rectangle.
    void Enabled(Boolean value);
    Boolean Enabled() const { return enabled_; }

    /// The window drawn on; setting one creates the outline pen, setting 0 deletes it.
    void hwnd(Long handle);
    Long hwnd() const { return window_; }

    /// Draws the tracked rectangle once more: restores it after a repaint, toggles it otherwise.
    void Refresh();

    void RectangleVisible(Boolean value);
    Boolean RectangleVisible() const { return visible_; }

    /// Draw one figure; neither asks whether the object is enabled. Error 11 before it ever was.
    void DrawEllipse(Single XLeft, Single YTop, Single XRight, Single YBottom);
    void DrawRectangle(Single XLeft, Single YTop, Single XRight, Single YBottom);

  private:
    struct Corner {
        Long x = 0;
        Long y = 0;
    };
    void MoveTracked(Corner start, Corner end);
    void DrawTracked();
    Long PixelX(Double x) const;
    Long PixelY(Double y) const;

    DrawingContext& drawing_;
    Boolean visible_ = false;
    Long window_ = 0;
    Boolean enabled_ = false;
    Corner start_;
    Corner end_;
    DrawingContext::Handle previousPen_ = 0;
    DrawingContext::Handle outlinePen_ = 0;
    DrawingContext::Handle context_ = 0;
    Single pixelScaleX_ = 0;
    Single pixelScaleY_ = 0;
};

} // namespace zorvane
