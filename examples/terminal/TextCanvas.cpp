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

// A rim is painted before its bottom and is larger: brackets, with room for the bottom between
// them.
void TextCanvas::DrawShape(const ShapeStyle& style, const Rect& box) {
    const bool plain = style.fill == Resolve(kDefaultWellColor, SystemPalette());
    if (box.width >= 3 * cellWidth_)
        Write(box, plain ? "( )" : "[ ]");
    else
        Write(box, plain ? "o" : "#");
}

void TextCanvas::DrawText(const TextStyle&, const Rect& box, std::string_view text) {
    Write(box, text);
}

Single TextCanvas::TextWidth(std::string_view text, Boolean) const {
    return cellWidth_ * static_cast<Single>(text.size());
}

void TextCanvas::Write(const Rect& box, std::string_view text) {
    const Single x = (box.left + box.width / 2 - area_.left) / cellWidth_;
    const Single y = (box.top + box.height / 2 - area_.top) / cellHeight_;
    if (y < 0 || y >= static_cast<Single>(lines_.size())) return;
    std::string& line = lines_[static_cast<std::size_t>(y)];
    const auto first = static_cast<long>(x - static_cast<Single>(text.size() - 1) / 2);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto at = static_cast<std::size_t>(first + static_cast<long>(i)); // huge left of 0
        if (at < line.size() && text[i] != ' ') line[at] = text[i];
    }
}
