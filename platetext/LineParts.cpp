#include "platetext/LineParts.h"

#include "runtime/Text.h"
#include "runtime/TextFunctions.h"

namespace zorvane {

LineParts::LineParts(std::string_view line) {
    keyword = NextWord(line);
    argument = Trim(line);
    std::string_view words = argument;
    first = NextWord(words);
    rest = Trim(words);
    surplus = TrimEnd(rest.substr(0, rest.find_first_of(kCommentMarks)));
}

} // namespace zorvane
