#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

namespace zorvane {

/// Kinds, styles and modes that the inverting outline asks for, with their platform numbers.
inline constexpr Long kPenObject = 1;      ///< GetCurrentObject: the pen
inline constexpr Long kDottedPen = 2;      ///< CreatePen: dotted style
inline constexpr Long kNotXorPenMode = 10; ///< SetROP2: not (pen xor screen)

/// Drawing straight onto a window, outside of its painting. Handles are opaque numbers, 0 is none;
/// coordinates are device pixels relative to the window. Calls with a null context draw nothing.
/// Made while an outline is begun, moved or ended; nothing is kept beyond a call but the handles.
///
/// With a black dotted pen in not-xor mode a figure inverts the pixels under its dots and leaves
/// everything else untouched, so drawing it twice restores the window. A repaint of the window
/// wipes what was drawn.
class ZORVANE_EXPORT DrawingContext {
  public:
    using Handle = Long;

    virtual ~DrawingContext() = default;

    virtual Handle GetDC(Handle window) = 0;
    virtual void ReleaseDC(Handle window, Handle context) = 0;
    virtual Handle GetCurrentObject(Handle context, Long kind) = 0;
    virtual Handle SelectObject(Handle context, Handle object) = 0;
    virtual Handle CreatePen(Long style, Long width, Long color) = 0;
    virtual void DeleteObject(Handle object) = 0;
    virtual void SetROP2(Handle context, Long mode) = 0;
    virtual void Rectangle(Handle context, Long left, Long top, Long right, Long bottom) = 0;
    virtual void Ellipse(Handle context, Long left, Long top, Long right, Long bottom) = 0;
};

} // namespace zorvane
