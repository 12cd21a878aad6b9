#include "library/TextLines.h"

#include <algorithm>
#include <cstddef>

namespace zorvane {

TextLine TakeLine(std::string_view& text) {
    const std::size_t length = std::min(text.find_first_of("\r\n"), text.size());
    const bool crLf = text.substr(length, 2) == "\r\n";
    const std::size_t endLength = crLf ? 2 : std::min(text.size() - length, std::size_t{1});
    const TextLine line{text.substr(0, length), text.substr(length, endLength)};
    text.remove_prefix(length + endLength);
    return line;
}

std::vector<TextLine> LinesOf(std::string_view text) {
    std::vector<TextLine> lines;
    while (!text.empty())
        lines.push_back(TakeLine(text));
    return lines;
}

} // namespace zorvane
