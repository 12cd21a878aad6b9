#pragma once

#include "platform/DrawingContext.h"
#include "platform/Outline.h"
#include "runtime/Export.h"
#include "runtime/Geometry.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <vector>

namespace zorvane {

/// The drawing context of a window whose platform has no inverting mode: outlines toggle the bits
/// of a bitmap as large as the window, in device pixels, and the host inverts the pixels under the
/// set bits whenever it paints. A host clears the bitmap when it repaints the whole window.
///
/// An outline covers the columns left to right - 1 and the rows top to bottom - 1, with the corners
/// in either order, and touches each of its pixels once, so that drawing it twice leaves no trace.
/// A dotted pen draws three pixels and leaves three out, counted along the figure from a place of
/// its own; any other pen draws them all. Pens are black and one pixel wide. Outlines are drawn in
/// not-xor mode only; in another mode, or with a context that is none, nothing is drawn. A pen
/// that is deleted keeps drawing where it is selected.
class ZORVANE_EXPORT InvertingOverlay final : public DrawingContext {
  public:
    InvertingOverlay() = default;
    InvertingOverlay(Long width, Long height) { Resize(width, height); }

    /// Takes another size, no less than 0, and clears.
    void Resize(Long width, Long height);
    void Clear();

    Long Width() const { return width_; }
    Long Height() const { return height_; }
    /// True when some pixel is inverted.
    bool Any() const { return inverted_ > 0; }
    /// False outside of the bitmap.
    bool IsInverted(Long x, Long y) const;

    /// The bits of a row from 0 to Height() - 1, the leftmost pixel in the most significant bit of
    /// the first byte. Valid until the next Resize.
    const std::uint8_t* Row(Long y) const;
    /// The bytes of a row, a multiple of 4.
    std::size_t BytesPerRow() const { return bytesPerRow_; }

    /// Called with each area that a figure touched inside of the bitmap: the edges of a rectangle
    /// one by one, the whole box of an ellipse.
    std::function<void(const Rect& pixels)> onChange;

    /// A context of its own for each call; none for window 0. A solid pen and plain copying mode
    /// are in force at first.
    Handle GetDC(Handle window) override;
    void ReleaseDC(Handle window, Handle context) override;
    /// The selected pen; none for another kind of object.
    Handle GetCurrentObject(Handle context, Long kind) override;
    /// Selects a pen and returns the one before; an unknown object changes nothing and returns 0.
    Handle SelectObject(Handle context, Handle object) override;
    Handle CreatePen(Long style, Long width, Long color) override;
    void DeleteObject(Handle object) override;
    void SetROP2(Handle context, Long mode) override;
    void Rectangle(Handle context, Long left, Long top, Long right, Long bottom) override;
    void Ellipse(Handle context, Long left, Long top, Long right, Long bottom) override;

  private:
    static constexpr Handle kStockPen = 1;
    static constexpr Long kCopyMode = 13;

    struct Context {
        Handle pen = kStockPen;
        bool dotted = false;
        Long mode = kCopyMode;
    };

    /// The context when an outline can be drawn with it, else null.
    const Context* Inverting(Handle context) const;
    PixelBox Bounds() const { return {0, 0, width_, height_}; }
    void Toggle(std::int64_t x, std::int64_t y);
    void Report(const PixelBox& touched) const;

    Long width_ = 0;
    Long height_ = 0;
    std::size_t bytesPerRow_ = 0;
    std::vector<std::uint8_t> bits_;
    std::int64_t inverted_ = 0; // how many bits are set

    std::map<Handle, Context> contexts_;
    std::map<Handle, Long> pens_{{kStockPen, 0}}; // styles by handle
    Handle lastHandle_ = kStockPen;
};

} // namespace zorvane
