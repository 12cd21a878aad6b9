#include "drawing/TextFitting.h"
#include "drawing/Canvas.h"
#include "runtime/NumberText.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

/// Keeps the texts that are drawn, each with its place: "Tip at 0 97.5". Every character is 100
/// drawing units wide.
class TextCanvas final : public Canvas {
  public:
    Rect Clip() const override { return {}; }
    void DrawShape(const ShapeStyle&, const Rect&) override {}
    void FillRectangle(Rgb, const Rect&) override {}
    void DrawRectangle(Rgb, const Rect&) override {}
    void DrawInvertedOutline(const Rect&) override {}
    void BeginClip(const Rect&) override {}
    void EndClip() override {}
    void DrawText(const TextStyle&, const Rect& box, std::string_view text) override {
        drawn.push_back(String(text) + " at " + GeneralText(box.top) + " of " +
                        GeneralText(box.width));
    }
    Single TextWidth(std::string_view text, Boolean) const override {
        return static_cast<Single>(text.size()) * 100;
    }

    std::vector<String> drawn;
};

TEST(TextFittingTest, Shortens) {
    const TextCanvas canvas; // a character of n bytes is n hundred wide
    const auto shortened = [&canvas](std::string_view text, Single width,
                                     std::string_view expected) {
        EXPECT_EQ(Shortened(canvas, text, false, width), expected)
            << '"' << text << "\" in " << width;
    };
    shortened("", 0, "");
    shortened("Tip 12", 600, "Tip 12");
    shortened("Tip 12", 599, "Ti…");
    shortened("Tip 12", 400, "T…");
    shortened("Tip 12", 399, "…");
    shortened("Tip 12", 0, "…");
    shortened("aéééé", 500, "a…"); // no half characters
    shortened("aéééé", 600, "aé…");
    shortened(String(1 << 20, 'x'), 500, "xx…");
}

TEST(TextFittingTest, BreaksCaptionsIntoTheLinesOfTheirBox) {
    using Lines = std::vector<String>;
    const struct {
        const char* text;
        Single lines;
        Lines drawn;
    } rows[] = {
        {"Tip 12", 1, {"Tip 12 at 0 of 600"}},
        {"Tip 123", 1, {"Tip… at 0 of 600"}},
        {"Tip 12", 2, {"Tip 12 at 97.5 of 600"}},
        {"Tip 1234", 2, {"Tip at 0 of 600", "1234 at 195 of 600"}},
        {"a b c unbroken d", 3, {"a b c at 0 of 600", "unb… at 195 of 600", "d at 390 of 600"}},
        {"a b c d e f g h i j k l m",
         9, // no well has more than four lines
         {"a b c at 487.5 of 600", "d e f at 682.5 of 600", "g h i at 877.5 of 600",
          "j k… at 1072.5 of 600"}},
        {"", 2, {}},
    };
    for (const auto& row : rows) {
        TextCanvas canvas;
        DrawTextBlock(canvas, {}, {0, 0, 600, row.lines * kLineHeight}, row.text);
        EXPECT_EQ(canvas.drawn, row.drawn) << row.text;
    }
}

} // namespace
} // namespace zorvane
