#include "runtime/NumberText.h"

#include "runtime/Rounding.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <optional>

namespace zorvane {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t SkipDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && IsDigit(text[at]))
        ++at;
    return at;
}

std::size_t SkipSign(std::string_view text, std::size_t at) {
    return at < text.size() && (text[at] == '+' || text[at] == '-') ? at + 1 : at;
}

/// How many characters at the start of a text form a decimal number; 0 when it begins with none.
std::size_t NumberLength(std::string_view text) {
    const std::size_t start = SkipSign(text, 0);
    std::size_t end = SkipDigits(text, start);
    std::size_t digits = end - start;
    if (end < text.size() && text[end] == '.') {
        const std::size_t places = end + 1;
        end = SkipDigits(text, places);
        digits += end - places;
    }
    if (digits == 0) return 0;
    if (end == text.size() || ToLowerAscii(text[end]) != 'e') return end;
    const std::size_t power = SkipSign(text, end + 1);
    const std::size_t powerEnd = SkipDigits(text, power);
    return powerEnd > power ? powerEnd : end;
}

/// True when a number that lies outside of every floating type is a large one, not a small one.
bool IsHuge(std::string_view number) {
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, mark);
    const auto first = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
    const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    std::int32_t power = 0;
    if (mark < number.size()) {
        const bool negative = number[mark + 1] == '-';
        const char* const digits = number.data() + SkipSign(number, mark + 1);
        if (std::from_chars(digits, number.data() + number.size(), power).ec != std::errc())
            power = std::numeric_limits<std::int32_t>::max();
        if (negative) power = -power;
    }
    return point - first + power > 0;
}

/// The value of a text that is a number from end to end; nothing when it is too large.
template <class T>
std::optional<T> ValueOf(std::string_view number) {
    // from_chars takes no plus sign.
    if (number[0] == '+') number.remove_prefix(1);
    T value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec != std::errc::result_out_of_range) return value;
    if (IsHuge(number)) return std::nullopt;
    return T{0};
}

template <class T>
T Leading(std::string_view text) {
    text = TrimStart(text);
    const std::size_t length = NumberLength(text);
    if (length == 0) return 0;
    const std::optional<T> value = ValueOf<T>(text.substr(0, length));
    if (!value) Raise(ErrorNumber::Overflow);
    return *value;
}

/// The value of a text that is a short plain decimal from end to end ("12", "-9.000"), as most
/// numbers are. Whole numbers and powers of ten of this size are exact as Single, so the one
/// division gives the nearest value.
std::optional<Single> ShortDecimal(std::string_view text) {
    constexpr std::array<Single, 8> powers{1e0F, 1e1F, 1e2F, 1e3F, 1e4F, 1e5F, 1e6F, 1e7F};
    constexpr std::int32_t exactBelow = 1 << std::numeric_limits<Single>::digits;
    const bool negative = text.starts_with('-');
    if (negative) text.remove_prefix(1);
    if (text.size() > powers.size() || text.empty() || !IsDigit(text.front())) return std::nullopt;
    std::int32_t digits = 0;
    std::size_t places = 0;
    bool afterPoint = false;
    for (const char c : text) {
        if (c == '.' && !afterPoint) {
            afterPoint = true;
        } else {
            if (!IsDigit(c)) return std::nullopt;
            digits = 10 * digits + (c - '0');
            places += afterPoint ? 1 : 0;
        }
    }
    if (digits >= exactBelow) return std::nullopt;
    const Single value = static_cast<Single>(digits) / powers[places];
    return negative ? -value : value;
}

Long ParseHexadecimal(std::string_view digits) {
    std::uint32_t bits = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), bits, 16);
    if (digits.empty() || result.ptr != digits.data() + digits.size())
        Raise(ErrorNumber::TypeMismatch);
    if (result.ec != std::errc()) Raise(ErrorNumber::Overflow);
    return static_cast<Long>(bits);
}

} // namespace

Double LeadingNumber(std::string_view text) { return Leading<Double>(text); }

Single LeadingSingle(std::string_view text) {
    const std::optional<Single> value = ShortDecimal(text);
    return value ? *value : Leading<Single>(text);
}

Boolean IsNumber(std::string_view text) {
    text = Trim(text);
    return !text.empty() && NumberLength(text) == text.size() && ValueOf<Double>(text);
}

Double ParseDouble(std::string_view text) {
    text = Trim(text);
    if (text.empty() || NumberLength(text) != text.size()) Raise(ErrorNumber::TypeMismatch);
    return LeadingNumber(text);
}

Long ParseLong(std::string_view text) {
    text = Trim(text);
    if (StartsWithNoCase(text, "&H")) return ParseHexadecimal(text.substr(2));
    return ToLong(ParseDouble(text));
}

} // namespace zorvane
