#pragma once

#include "drawing/Canvas.h"
#include "runtime/NumberText.h"

#include <array>
#include <ostream>
#include <vector>

namespace zorvane {

inline String Name(Rgb color) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    String name;
    for (const std::uint8_t part : {color.red, color.green, color.blue}) {
        name += kDigits[part >> 4];
        name += kDigits[part & 15];
    }
    return name;
}

inline std::ostream& operator<<(std::ostream& out, Rgb color) { return out << Name(color); }

/// Keeps what is painted as lines of text: "circle E0E0E0 at 30 45 size 60 60". Every character is
/// 100 drawing units wide.
class RecordingCanvas final : public Canvas {
  public:
    explicit RecordingCanvas(const Rect& clip = {0, 0, 10000, 10000}) : clip_(clip) {}

    Rect Clip() const override { return clip_; }
    void DrawShape(const ShapeStyle& style, const Rect& box) override {
        constexpr std::array kKinds = {"rectangle", "square", "oval", "circle", "rounded"};
        const String outline = style.outlined ? "" : "borderless ";
        Record(outline + kKinds.at(static_cast<std::size_t>(style.kind)), style.fill, box);
    }
    void FillRectangle(Rgb color, const Rect& box) override { Record("fill", color, box); }
    void DrawRectangle(Rgb color, const Rect& box) override { Record("line", color, box); }
    void DrawText(const TextStyle& style, const Rect& box, std::string_view text) override {
        String what = style.bold ? "bold \"" : "\"";
        what += text;
        what += style.align == TextAlign::Left ? "\" left" : "\"";
        Record(what, style.color, box);
    }
    Single TextWidth(std::string_view text, Boolean /*bold*/) const override {
        return static_cast<Single>(text.size()) * 100;
    }
    void DrawInvertedOutline(const Rect& box) override { Record("inverted", kWhite, box); }
    void BeginClip(const Rect&) override {}
    void EndClip() override {}

    std::vector<String> painted;

  private:
    void Record(const String& what, Rgb color, const Rect& box) {
        painted.push_back(what + ' ' + Name(color) + " at " + GeneralText(box.left) + ' ' +
                          GeneralText(box.top) + " size " + GeneralText(box.width) + ' ' +
                          GeneralText(box.height));
    }

    Rect clip_;
};

} // namespace zorvane
