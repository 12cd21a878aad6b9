#include "TextCanvas.h"

#include <algorithm>
#include <cmath>

using namespace zorvane;

TextCanvas::TextCanvas(const Rect& area, int columns)
    : area_(area), cellWidth_(area.width / static_cast<Single>(columns)),
      cellHeight_(2 * cellWidth_), // as characters are about twice as high as they are wide
      lines_(static_cast<std::size_t>(std::ceil(area.height / cellHeight_)),
             std::string(static_cast<std::size_t>(columns), ' ')) {}

std::string TextCanvas::Text() const {
    std::string text;
    for (const std::string& line : lines_) {
        const auto end = line.find_last_not_of(' ');
        text += line.substr(0, end == std::string::npos ? 0 : end + 1) + '\n';
    }
    return text;
}

// The rim of a well is painted first; its bottom goes between the brackets.
void TextCanvas::DrawShape(const ShapeStyle& style, const Rect& box) {
    const bool plain = style.fill == Resolve(kDefaultWellColor, SystemPalette());
    if (box.width >= 3 * cellWidth_ && !IsBetweenBrackets(box))
        Write(box, plain ? "( )" : "[ ]");
    else
        Write(box, plain ? "o" : "#");
}

bool TextCanvas::IsBetweenBrackets(const Rect& box) {
    const std::string* const line = LineOf(box);
    const std::size_t before = ColumnOf(box) - 1;
    return line && before < line->size() && ((*line)[before] == '(' || (*line)[before] == '[');
}

void TextCanvas::DrawText(const TextStyle&, const Rect& box, std::string_view text) {
    Write(box, text);
}

Single TextCanvas::TextWidth(std::string_view text, Boolean) const {
    return cellWidth_ * static_cast<Single>(text.size());
}

std::size_t TextCanvas::ColumnOf(const Rect& box) const {
    const Single column = (box.left + box.width / 2 - area_.left) / cellWidth_;
    return static_cast<std::size_t>(std::max<Single>(column, 0));
}

std::string* TextCanvas::LineOf(const Rect& box) {
    const Single line = (box.top + box.height / 2 - area_.top) / cellHeight_;
    const bool shown = line >= 0 && line < static_cast<Single>(lines_.size());
    return shown ? &lines_[static_cast<std::size_t>(line)] : nullptr;
}

void TextCanvas::Write(const Rect& box, std::string_view text) {
    std::string* const line = LineOf(box);
    if (!line) return;
    const std::size_t first = ColumnOf(box) - text.size() / 2; // beyond the line left of its start
    for (std::size_t i = 0; i < text.size(); ++i)
        if (first + i < line->size() && text[i] != ' ') (*line)[first + i] = text[i];
}
