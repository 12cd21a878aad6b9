#include "runtime/TextFunctions.h"

#include <algorithm>

namespace zorvane {

namespace {

/// The bracket that closes an opening one; a zero character for any other text.
char ClosingBracket(std::string_view open) {
    if (open == "(") return ')';
    if (open == "<") return '>';
    if (open == "[") return ']';
    if (open == "{") return '}';
    return '\0';
}

} // namespace

String BlankControlChars(std::string_view s) {
    String result(s);
    std::replace_if(result.begin(), result.end(), IsBlank, ' ');
    return result;
}

String TrimLeadingBlanks(std::string_view s) { return String(TrimStart(s)); }

String TrimTrailingBlanks(std::string_view s) { return String(TrimEnd(s)); }

String TrimBlanks(std::string_view s) { return String(Trim(s)); }

String NextWord(String& s) {
    std::string_view rest = s;
    String word(NextWord(rest));
    s.erase(0, s.size() - rest.size());
    return word;
}

String NextWordUpper(String& s) { return UpperText(NextWord(s)); }

String QuoteText(std::string_view s, std::string_view q) {
    String result(q);
    if (const char closing = ClosingBracket(q)) return result.append(s) + closing;
    while (!q.empty()) {
        const std::size_t mark = s.find(q);
        if (mark == s.npos) break;
        result.append(s.substr(0, mark)).append(q).append(q);
        s.remove_prefix(mark + q.size());
    }
    return result.append(s).append(q);
}

String Capitalize(std::string_view s) {
    String result = LowerText(s);
    if (!result.empty()) result[0] = ToUpperAscii(result[0]);
    return result;
}

} // namespace zorvane
