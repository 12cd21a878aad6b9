#include "formats/maps/TomlKeys.h"

#include "formats/PlateSource.h"

#include <algorithm>
#include <string>

namespace zorvane {

namespace {

constexpr int kMostParts = 8;

/// The end of a string that begins at a place: in single or double quotes, of one line or of many.
std::size_t StringEnd(std::string_view text, std::size_t at) {
    const char quote = text[at];
    const std::string triple(3, quote);
    const bool longString = text.substr(at, 3) == triple;
    const std::string_view closing = std::string_view(triple).substr(0, longString ? 3 : 1);
    for (at += closing.size(); at < text.size(); ++at) {
        if (!longString && text[at] == '\n') return at; // an error of the file
        if (quote == '"' && text[at] == '\\') {
            ++at;
        } else if (text.substr(at, closing.size()) == closing) {
            at += closing.size();
            // A long string can end in one or two quotes of its own.
            for (int own = 0; longString && own < 2 && at < text.size() && text[at] == quote; ++own)
                ++at;
            return at;
        }
    }
    return text.size();
}

/// Whether a character outside of strings can stand inside a key, or between its parts.
bool IsOfKey(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-' || c == ' ' || c == '\t';
}

} // namespace

void RequireShortKeys(std::string_view toml) {
    int parts = 1;
    for (std::size_t at = 0; at < toml.size();) {
        const char c = toml[at];
        if (c == '"' || c == '\'') {
            at = StringEnd(toml, at);
            continue;
        }
        if (c == '#') {
            at = std::min(toml.find('\n', at), toml.size());
            continue;
        }
        if (c == '.' && ++parts > kMostParts) {
            const auto line =
                1 + std::count(toml.begin(), toml.begin() + static_cast<std::ptrdiff_t>(at), '\n');
            RefuseSource("line " + std::to_string(line) + ": a key of more than eight parts");
        }
        if (c != '.' && !IsOfKey(c)) parts = 1;
        ++at;
    }
}

} // namespace zorvane
