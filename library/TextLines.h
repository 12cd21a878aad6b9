#pragma once

#include <string_view>
#include <vector>

namespace zorvane {

/// A line and the CR LF, LF or CR that ends it; the last line of a text may have none.
struct TextLine {
    std::string_view text;
    std::string_view end;
};

/// Takes the first line off the front of a text, which is not empty.
TextLine TakeLine(std::string_view& text);

/// The lines of a text, as a library file is cut into lines; they look into the text.
std::vector<TextLine> LinesOf(std::string_view text);

} // namespace zorvane
