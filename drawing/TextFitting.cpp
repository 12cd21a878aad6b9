#include "drawing/TextFitting.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace zorvane {

namespace {

constexpr std::string_view kEllipsis = "\xE2\x80\xA6";
constexpr Integer kMostLines = 4;

/// The last place at or before `at` where no character is cut in two.
std::size_t CharacterStart(std::string_view text, std::size_t at) {
    while (at > 0 && at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80)
        --at;
    return at;
}

/// Takes the words off the front of a text that fit a line; at least one.
std::string_view TakeLine(const Canvas& canvas, Boolean bold, Single width,
                          std::string_view& rest) {
    std::size_t end = rest.find(' ');
    while (end != std::string_view::npos) {
        const std::size_t next = rest.find(' ', end + 1);
        if (canvas.TextWidth(rest.substr(0, next), bold) > width) break;
        end = next;
    }
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return line;
}

} // namespace

Integer LinesIn(const Rect& box) {
    return static_cast<Integer>(
        std::clamp(std::floor(box.height / kLineHeight), Single{1}, Single{kMostLines}));
}

String Shortened(const Canvas& canvas, std::string_view text, Boolean bold, Single width) {
    if (canvas.TextWidth(text, bold) <= width) return String(text);
    const Single room = width - canvas.TextWidth(kEllipsis, bold);
    std::size_t fits = 0;
    std::size_t tooLong = text.size();
    while (tooLong - fits > 1) {
        const std::size_t middle = fits + (tooLong - fits) / 2;
        const std::string_view start = text.substr(0, CharacterStart(text, middle));
        (canvas.TextWidth(start, bold) <= room ? fits : tooLong) = middle;
    }
    String result(text.substr(0, CharacterStart(text, fits)));
    result += kEllipsis;
    return result;
}

void DrawFittedText(Canvas& canvas, const TextStyle& style, const Rect& box,
                    std::string_view text) {
    const bool fits = canvas.TextWidth(text, style.bold) <= box.width;
    const String shortened = fits ? String() : Shortened(canvas, text, style.bold, box.width);
    canvas.DrawText(style, box, fits ? text : shortened);
}

void DrawTextBlock(Canvas& canvas, const TextStyle& style, const Rect& box, std::string_view text) {
    std::array<std::string_view, kMostLines> lines;
    const auto most = static_cast<std::size_t>(LinesIn(box));
    std::size_t count = 0;
    while (!text.empty() && count + 1 < most)
        lines[count++] = TakeLine(canvas, style.bold, box.width, text);
    if (!text.empty()) lines[count++] = text;

    Rect line{box.left, box.top + (box.height - static_cast<Single>(count) * kLineHeight) / 2,
              box.width, kLineHeight};
    for (const std::string_view words : std::span(lines).first(count)) {
        DrawFittedText(canvas, style, line, words);
        line.top += kLineHeight;
    }
}

} // namespace zorvane
