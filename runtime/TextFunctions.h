#pragma once

#include "runtime/Export.h"
#include "runtime/Text.h"
#include "runtime/Types.h"

#include <cstddef>
#include <string_view>

/// Splits texts into words and puts them in quotes. A blank is a space, TAB, CR or LF.
namespace zorvane {

/// The text with every TAB, LF and CR replaced by a space.
ZORVANE_EXPORT String BlankControlChars(std::string_view s);

/// The text without the blanks at its start, at its end, or at both.
ZORVANE_EXPORT String TrimLeadingBlanks(std::string_view s);
ZORVANE_EXPORT String TrimTrailingBlanks(std::string_view s);
ZORVANE_EXPORT String TrimBlanks(std::string_view s);

/// Takes the next word off the text: skips leading blanks and returns what precedes the first
/// space or TAB. The text keeps the rest from that delimiter on; without one it becomes empty.
ZORVANE_EXPORT String NextWord(String& s);
/// NextWord in upper case.
ZORVANE_EXPORT String NextWordUpper(String& s);
/// NextWord on a view, for readers that store few of the words they take.
constexpr std::string_view NextWord(std::string_view& s) {
    s = TrimStart(s);
    std::size_t end = 0;
    while (end < s.size() && s[end] != ' ' && s[end] != '\t')
        ++end;
    const std::string_view word = s.substr(0, end);
    s.remove_prefix(end);
    return word;
}

/// The text between a pair of marks. An opening bracket ( < [ { is closed by its counterpart;
/// any other mark goes on both sides and is doubled inside.
ZORVANE_EXPORT String QuoteText(std::string_view s, std::string_view q);

/// The first letter in upper case, the others in lower case.
ZORVANE_EXPORT String Capitalize(std::string_view s);

} // namespace zorvane
