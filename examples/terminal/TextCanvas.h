#pragma once

#include <drawing/Canvas.h>

#include <string>
#include <vector>

/// Paints a control in characters: a well as (o), with "#" for one that has been given a colour,
/// and square brackets for a rim that has, as that of a selected well.
class TextCanvas final : public zorvane::Canvas {
  public:
    /// A picture of `area`, with this many columns of characters.
    TextCanvas(const zorvane::Rect& area, int columns);

    /// The picture's lines, without blanks at their ends.
    std::string Text() const;

    zorvane::Rect Clip() const override { return area_; }
    void DrawShape(const zorvane::ShapeStyle& style, const zorvane::Rect& box) override;
    void FillRectangle(zorvane::Rgb, const zorvane::Rect&) override {}
    void DrawRectangle(zorvane::Rgb, const zorvane::Rect&) override {}
    void DrawText(const zorvane::TextStyle& style, const zorvane::Rect& box,
                  std::string_view text) override;
    zorvane::Single TextWidth(std::string_view text, zorvane::Boolean bold) const override;
    void DrawInvertedOutline(const zorvane::Rect&) override {}
    void BeginClip(const zorvane::Rect&) override {}
    void EndClip() override {}

  private:
    std::size_t ColumnOf(const zorvane::Rect& box) const;
    /// The line through the middle of a box, or null outside of the picture.
    std::string* LineOf(const zorvane::Rect& box);
    bool IsBetweenBrackets(const zorvane::Rect& box);
    /// Writes a text over the middle of a box; blanks leave what is there.
    void Write(const zorvane::Rect& box, std::string_view text);

    zorvane::Rect area_;
    zorvane::Single cellWidth_;
    zorvane::Single cellHeight_;
    std::vector<std::string> lines_;
};
