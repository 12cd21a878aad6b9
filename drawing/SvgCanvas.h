#pragma once

#include "drawing/Canvas.h"
#include "runtime/Export.h"
#include "runtime/Types.h"

#include <string_view>
#include <vector>

namespace zorvane {

/// What an SVG picture shows and how large it is.
struct SvgPage {
    Rect area{};          ///< the part of the control that is shown, in drawing units
    String title{};       ///< read out by screen readers, shown as a tooltip
    String description{}; ///< left out when empty
    /// The size in pixels; 0 keeps the proportions, both 0 the natural size: 15 drawing units a
    /// pixel, 96 pixels an inch.
    Single pixelWidth = 0;
    Single pixelHeight = 0;
};

/// Writes what is painted as an SVG picture whose unit is the drawing unit. Groups become "g"
/// elements with their names as ids, those without content are left out; a group states the colours
/// of its first element, so that equal wells take a few bytes each.
class ZORVANE_EXPORT SvgCanvas final : public Canvas {
  public:
    explicit SvgCanvas(const SvgPage& page);

    /// Completes the picture and hands it over; nothing more can be painted then.
    String Finish();

    Rect Clip() const override { return area_; }
    void DrawShape(const ShapeStyle& style, const Rect& box) override;
    void FillRectangle(Rgb color, const Rect& box) override;
    void DrawRectangle(Rgb color, const Rect& box) override;
    void DrawText(const TextStyle& style, const Rect& box, std::string_view text) override;
    Single TextWidth(std::string_view text, Boolean bold) const override;
    void DrawInvertedOutline(const Rect& box) override;
    void BeginClip(const Rect& box) override;
    void EndClip() override { EndGroup(); }
    /// The name is an id: used once a picture, without blanks. An empty one gives no id.
    void BeginGroup(std::string_view name) override;
    void EndGroup() override;

  private:
    struct Paint {
        String fill;
        String stroke;
    };
    struct Group {
        String name;
        Paint paint; ///< what its elements inherit
        bool begun = false;
        String clipPath; ///< id of the clip path, for groups that clip
    };

    Single Snapped(Single position) const;
    Rect Placed(const Rect& box) const;
    Rect WithSnappedEdges(const Rect& box) const;

    void BeginElement(std::string_view name, const Paint& paint);
    void BeginGroups(const Paint& paint);
    void StartTag(std::string_view name, std::size_t depth);
    void Differences(const Paint& paint, const Paint& inherited);
    void Attribute(std::string_view name, std::string_view value);
    void Attribute(std::string_view name, Double value);
    void BoxAttributes(const Rect& box);
    void WriteBox(const Paint& paint, const Rect& box, Single cornerRadius = 0);
    void WriteEllipse(const Paint& paint, const Rect& box);

    Rect area_;
    /// Lines start at multiples of this, which are whole pixels of the picture in its stated size,
    /// or wells that stand close would run into each other there.
    Single grid_ = 0;
    String svg_;
    int clips_ = 0;
    std::vector<Group> groups_; ///< the picture itself, then the groups not ended yet
};

} // namespace zorvane
