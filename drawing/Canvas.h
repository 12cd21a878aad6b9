#pragma once

#include "control/Surface.h"
#include "drawing/Palette.h"
#include "runtime/Export.h"
#include "runtime/Geometry.h"
#include "runtime/Types.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace zorvane {

/// A filled shape; circles and squares are the largest ones centred in their box. The outline is
/// one pixel wide, black, and lies inside of the box.
struct ShapeStyle {
    ShapeKind kind = ShapeKind::Rectangle;
    Rgb fill{};
    Boolean outlined = true;
};

enum class TextAlign : std::uint8_t { Left, Centre };

/// One line of text, centred vertically in its box. It is not cut off at the box's sides: whoever
/// asks for it makes sure that it fits.
struct TextStyle {
    Rgb color{};
    Boolean bold = false;
    TextAlign align = TextAlign::Centre;
};

/// The size of the control's default font (8.25 points) and the height of a line of text in it, in
/// drawing units.
inline constexpr Single kFontHeight = 165;
inline constexpr Single kLineHeight = 195;

/// The largest square centred in a box.
constexpr Rect CentredSquare(const Rect& box) {
    const Single side = std::min(box.width, box.height);
    return {box.left + (box.width - side) / 2, box.top + (box.height - side) / 2, side, side};
}

/// Where a control is painted. All lengths are drawing units in the control's coordinates; nothing
/// that is handed over outlives the call. Later calls paint over earlier ones.
class ZORVANE_EXPORT Canvas {
  public:
    virtual ~Canvas() = default;

    /// The area that is worth painting; what lies outside of it may be left out.
    virtual Rect Clip() const = 0;
    virtual void DrawShape(const ShapeStyle& style, const Rect& box) = 0;
    virtual void FillRectangle(Rgb color, const Rect& box) = 0;
    /// A one-pixel line along the inside of the box.
    virtual void DrawRectangle(Rgb color, const Rect& box) = 0;
    virtual void DrawText(const TextStyle& style, const Rect& box, std::string_view text) = 0;
    /// The width of a text in the default font.
    virtual Single TextWidth(std::string_view text, Boolean bold) const = 0;
    /// A dotted one-pixel outline that inverts what lies under it.
    virtual void DrawInvertedOutline(const Rect& box) = 0;
    /// Until the matching EndClip nothing is painted outside of the box.
    virtual void BeginClip(const Rect& box) = 0;
    virtual void EndClip() = 0;
    /// Names what is painted until the matching EndGroup, for canvases that keep a structure.
    virtual void BeginGroup(std::string_view /*name*/) {}
    virtual void EndGroup() {}
};

} // namespace zorvane
