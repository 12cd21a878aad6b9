#include "runtime/Text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace zorvane {

namespace {

bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

/// The length that a valid sequence with this first byte has; 0 for a byte that cannot begin one.
std::size_t SequenceLength(unsigned char first) {
    if (first < 0x80) return 1;
    if (first >= 0xC2 && first < 0xE0) return 2;
    if (first >= 0xE0 && first < 0xF0) return 3;
    if (first >= 0xF0 && first < 0xF5) return 4;
    return 0;
}

} // namespace

String UpperText(std::string_view text) {
    String result(text);
    std::transform(result.begin(), result.end(), result.begin(), ToUpperAscii);
    return result;
}

String LowerText(std::string_view text) {
    String result(text);
    std::transform(result.begin(), result.end(), result.begin(), ToLowerAscii);
    return result;
}

bool StartsWithNoCase(std::string_view text, std::string_view prefix) {
    if (prefix.size() > text.size()) return false;
    return std::equal(prefix.begin(), prefix.end(), text.begin(),
                      [](char a, char b) { return a == b || ToLowerAscii(a) == ToLowerAscii(b); });
}

std::size_t HashNoCase(std::string_view text) {
    // Eight characters at a time; the last eight may overlap the ones before. Setting the case bit
    // of every byte folds more than the letters, which only lets a few more texts share a hash.
    std::uint64_t hash = text.size();
    const auto mix = [&hash](const char* part, std::size_t size) {
        std::uint64_t word = 0;
        std::memcpy(&word, part, size);
        hash = (hash ^ (word | 0x2020202020202020U)) * 0x9E3779B97F4A7C15U;
        hash ^= hash >> 32;
    };
    constexpr std::size_t step = sizeof hash;
    if (text.size() < step) {
        for (const char& c : text)
            mix(&c, 1);
    } else {
        for (std::size_t at = 0; at + step < text.size(); at += step)
            mix(text.data() + at, step);
        mix(text.data() + text.size() - step, step);
    }
    return static_cast<std::size_t>(hash);
}

CharacterAt FirstCharacter(std::string_view text) {
    if (text.empty()) return {0, 0, true};
    const auto first = static_cast<unsigned char>(text[0]);
    const std::size_t length = SequenceLength(first);
    if (length == 1) return {first, 1, true};

    const CharacterAt loneByte{first, 1, false};
    if (length == 0 || text.size() < length) return loneByte;
    Long code = first & (0x7F >> length);
    for (const char c : text.substr(1, length - 1)) {
        if (!IsContinuation(c)) return loneByte;
        code = code << 6 | (static_cast<unsigned char>(c) & 0x3F);
    }
    const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
    const bool surrogate = code >= 0xD800 && code < 0xE000;
    if (overlong || surrogate || code > 0x10FFFF) return loneByte;
    return {code, length, true};
}

bool IsUtf8(std::string_view text) {
    while (!text.empty()) {
        const CharacterAt character = FirstCharacter(text);
        if (!character.valid) return false;
        text.remove_prefix(character.bytes);
    }
    return true;
}

Long CharacterCount(std::string_view text) {
    Long count = 0;
    while (!text.empty()) {
        text.remove_prefix(FirstCharacter(text).bytes);
        ++count;
    }
    return count;
}

String EncodeUtf8(Long code) {
    const auto byte = [](Long bits) { return static_cast<char>(static_cast<unsigned char>(bits)); };
    const auto tail = [&](int shift) { return byte(0x80 | (code >> shift & 0x3F)); };
    if (code < 0x80) return {byte(code)};
    if (code < 0x800) return {byte(0xC0 | code >> 6), tail(0)};
    if (code < 0x10000) return {byte(0xE0 | code >> 12), tail(6), tail(0)};
    return {byte(0xF0 | code >> 18), tail(12), tail(6), tail(0)};
}

String PrintableUtf8(std::string_view text) {
    String result;
    result.reserve(text.size());
    while (!text.empty()) {
        const CharacterAt character = FirstCharacter(text);
        const bool lineBreakOrTab =
            character.code == '\t' || character.code == '\n' || character.code == '\r';
        const bool control = (character.code < 0x20 && !lineBreakOrTab) ||
                             (character.code >= 0x7F && character.code < 0xA0) ||
                             character.code == 0xFFFE || character.code == 0xFFFF;
        if (character.valid && !control) {
            result += text.substr(0, character.bytes);
        } else {
            result += "\xEF\xBF\xBD";
        }
        text.remove_prefix(character.bytes);
    }
    return result;
}

} // namespace zorvane
