#include "drawing/TextFitting.h"
#include "RecordingCanvas.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

TEST(TextFittingTest, Shortens) {
    const RecordingCanvas canvas; // a character of n bytes is n hundred wide
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
    const auto painted = [](std::string_view text, Single lines) {
        RecordingCanvas canvas;
        DrawTextBlock(canvas, {}, {0, 0, 600, lines * kLineHeight}, text);
        return canvas.painted;
    };
    using Lines = std::vector<String>;
    EXPECT_EQ(painted("Tip 12", 1), Lines{"\"Tip 12\" 000000 at 0 0 size 600 195"});
    EXPECT_EQ(painted("Tip 123", 1), Lines{"\"Tip…\" 000000 at 0 0 size 600 195"});
    EXPECT_EQ(painted("Tip 12", 2), Lines{"\"Tip 12\" 000000 at 0 97.5 size 600 195"});
    EXPECT_EQ(painted("Tip 1234", 2), (Lines{"\"Tip\" 000000 at 0 0 size 600 195",
                                             "\"1234\" 000000 at 0 195 size 600 195"}));
    EXPECT_EQ(painted("a b c unbroken d", 3), (Lines{"\"a b c\" 000000 at 0 0 size 600 195",
                                                     "\"unb…\" 000000 at 0 195 size 600 195",
                                                     "\"d\" 000000 at 0 390 size 600 195"}));
    EXPECT_EQ(painted("one two three four five six", 9).size(), 4U) << "no well has more lines";
    EXPECT_EQ(painted("", 2), Lines{});
}

} // namespace
} // namespace zorvane
