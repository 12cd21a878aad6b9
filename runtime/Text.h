#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

#include <cstddef>
#include <string_view>

/// Letter case and character counting. Case is folded for ASCII letters only; a character is a
/// UTF-8 code point, or a single byte where the bytes are not valid UTF-8.
namespace zorvane {

constexpr char ToLowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }
constexpr char ToUpperAscii(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; }

/// A blank is a space, TAB, CR or LF.
constexpr bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

/// The text without the blanks at its start, at its end, or at both.
constexpr std::string_view TrimStart(std::string_view text) {
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    return text;
}
constexpr std::string_view TrimEnd(std::string_view text) {
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}
constexpr std::string_view Trim(std::string_view text) { return TrimEnd(TrimStart(text)); }

ZORVANE_EXPORT String UpperText(std::string_view text);
ZORVANE_EXPORT String LowerText(std::string_view text);

/// True when the text begins with the prefix, ignoring letter case.
ZORVANE_EXPORT bool StartsWithNoCase(std::string_view text, std::string_view prefix);

/// True when both texts are the same, ignoring letter case.
inline bool EqualNoCase(std::string_view a, std::string_view b) {
    // Most texts that are compared are the same letter for letter.
    return a.size() == b.size() && (a == b || StartsWithNoCase(a, b));
}

/// A hash that agrees with EqualNoCase.
ZORVANE_EXPORT std::size_t HashNoCase(std::string_view text);

/// The first character of a text: its code (a code point, or the byte where the text is not valid
/// UTF-8) and how many bytes it takes. An empty text gives {0, 0}.
struct CharacterAt {
    Long code = 0;
    std::size_t bytes = 0;
    bool valid = true; ///< false when the byte is not part of a valid UTF-8 sequence
};
ZORVANE_EXPORT CharacterAt FirstCharacter(std::string_view text);

/// True when the whole text is valid UTF-8.
ZORVANE_EXPORT bool IsUtf8(std::string_view text);

/// The number of characters in a text.
ZORVANE_EXPORT Long CharacterCount(std::string_view text);

/// A code point as UTF-8.
ZORVANE_EXPORT String EncodeUtf8(Long code);

/// The text with every byte that is not valid UTF-8, and every control character that XML and
/// terminals do not take, replaced by U+FFFD. For showing, never for storing.
ZORVANE_EXPORT String PrintableUtf8(std::string_view text);

} // namespace zorvane
