#include "formats/ExactNumber.h"

#include "runtime/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>

namespace zorvane {

namespace {

constexpr int kDecimals = 12;
constexpr std::size_t kLongestText = 64;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// A number taken apart: its digits, and how many of them stand before the point.
struct Parts {
    bool negative = false;
    String digits;
    int before = 0;
};

std::optional<int> ExponentIn(std::string_view text) {
    if (text.starts_with("+-")) return std::nullopt;
    if (text.starts_with('+')) text.remove_prefix(1);
    int exponent = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), exponent);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return std::clamp(exponent, -1000, 1000);
}

std::optional<Parts> PartsOf(std::string_view text) {
    Parts parts;
    if (text.starts_with('-') || text.starts_with('+')) {
        parts.negative = text.front() == '-';
        text.remove_prefix(1);
    }
    const std::size_t mark = text.find_first_of("eE");
    if (mark != text.npos) {
        const auto exponent = ExponentIn(text.substr(mark + 1));
        if (!exponent) return std::nullopt;
        parts.before = *exponent;
        text = text.substr(0, mark);
    }
    const std::size_t point = std::min(text.find('.'), text.size());
    parts.digits = text.substr(0, point);
    parts.before += static_cast<int>(point);
    if (point < text.size()) parts.digits += text.substr(point + 1);
    if (parts.digits.empty() || !std::all_of(parts.digits.begin(), parts.digits.end(), IsDigit))
        return std::nullopt;
    return parts;
}

/// The value in units, to the nearest; nothing beyond the largest number.
std::optional<std::int64_t> UnitsOf(const Parts& parts) {
    constexpr std::int64_t most = ExactNumber::kLargest * ExactNumber::kOne;
    std::int64_t units = 0;
    for (int place = std::min(parts.before, 0); place < parts.before + kDecimals + 1; ++place) {
        const auto at = static_cast<std::size_t>(place);
        const int digit = place >= 0 && at < parts.digits.size() ? parts.digits[at] - '0' : 0;
        if (place == parts.before + kDecimals) return units + (digit >= 5 ? 1 : 0);
        if (units > (most - digit) / 10) return std::nullopt;
        units = units * 10 + digit;
    }
    return units;
}

} // namespace

ExactNumber::ExactNumber(std::int64_t units) : units_(units) {
    String decimals = std::to_string(std::abs(units) % kOne);
    decimals.insert(0, static_cast<std::size_t>(kDecimals) - decimals.size(), '0');
    decimals.erase(decimals.find_last_not_of('0') + 1);
    text_ = (units < 0 ? "-" : "") + std::to_string(std::abs(units) / kOne);
    if (!decimals.empty()) text_ += "." + decimals;
}

std::optional<ExactNumber> ExactNumber::Parse(std::string_view text) {
    if (text.size() > kLongestText) return std::nullopt;
    const auto parts = PartsOf(text);
    if (!parts) return std::nullopt;
    const auto units = UnitsOf(*parts);
    if (!units) return std::nullopt;
    ExactNumber number;
    number.units_ = parts->negative ? -*units : *units;
    number.text_ = text;
    return number;
}

std::optional<ExactNumber> ExactNumber::Of(Single value) {
    const auto number = Parse(SingleText(value));
    return number ? std::optional(ExactNumber(number->Units())) : std::nullopt;
}

bool SameNumber(const ExactNumber& a, const ExactNumber& b) {
    return std::abs(a.Units() - b.Units()) < ExactNumber::kOne / 2000;
}

} // namespace zorvane
