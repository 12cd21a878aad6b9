#pragma once

#include <string_view>

namespace zorvane {

/// A line of a definition taken apart the way the reader does it; every part looks into the line.
struct LineParts {
    std::string_view keyword;
    std::string_view argument; ///< everything after the keyword, a trailing comment too
    std::string_view first;    ///< the first word of the argument
    std::string_view rest;     ///< what follows that word, without blanks around it
    std::string_view surplus;  ///< the part of the rest in front of a trailing comment

    explicit LineParts(std::string_view line);
};

} // namespace zorvane
