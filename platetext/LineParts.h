#pragma once

#include "runtime/Text.h"

#include <string_view>

namespace zorvane {

/// Marks that begin a comment at the end of a line.
inline constexpr std::string_view kCommentMarks = ";'";

/// Returns whether a whole line of a definition is a comment.
constexpr bool IsCommentLine(std::string_view line) { return TrimStart(line).starts_with(';'); }

/// A line of a definition taken apart the way the reader does it; every part looks into the line.
struct LineParts {
    std::string_view keyword;
    std::string_view argument; ///< everything after the keyword, a trailing comment too
    std::string_view first;    ///< the first word of the argument
    std::string_view rest;     ///< what follows that word, without blanks at its ends
    std::string_view surplus;  ///< the part of the rest before a trailing comment

    explicit LineParts(std::string_view line);
};

} // namespace zorvane
