#include "runtime/Decimal.h"

#include "runtime/RuntimeError.h"

#include <charconv>
#include <cmath>
#include <iterator>
#include <string_view>

namespace zorvane {

namespace {

constexpr int kDoubleDigits = 15;

void Normalize(Decimal& decimal) {
    decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
    if (!decimal.digits.empty()) return;
    decimal.negative = false;
    decimal.exponent = 0;
}

/// Splits the result of a conversion to scientific form: "-1.25e-07".
void SetFromScientific(Decimal& decimal, std::string_view text) {
    decimal.negative = text.front() == '-';
    if (decimal.negative) text.remove_prefix(1);
    const std::size_t mark = text.find('e');
    decimal.digits = text.substr(0, 1);
    if (mark > 2) decimal.digits += text.substr(2, mark - 2);
    // from_chars takes no plus sign.
    const char* const exponent = text.data() + mark + (text[mark + 1] == '+' ? 2 : 1);
    std::from_chars(exponent, text.data() + text.size(), decimal.exponent);
    Normalize(decimal);
}

template <class Number, class... Precision>
void Convert(Decimal& decimal, Number value, Precision... precision) {
    if (!std::isfinite(value)) Raise(ErrorNumber::Overflow);
    char text[32];
    const auto end = std::to_chars(std::begin(text), std::end(text), value,
                                   std::chars_format::scientific, precision...)
                         .ptr;
    SetFromScientific(decimal, {text, static_cast<std::size_t>(end - text)});
}

} // namespace

Decimal::Decimal(Double value) { Convert(*this, value, kDoubleDigits - 1); }

Decimal::Decimal(Single value) { Convert(*this, value); }

void Decimal::Round(int places) {
    const int kept = exponent + 1 + places;
    if (kept >= static_cast<int>(digits.size())) return;
    const bool up = kept >= 0 && digits[static_cast<std::size_t>(kept)] >= '5';
    digits.erase(kept > 0 ? static_cast<std::size_t>(kept) : 0);
    if (up) {
        while (!digits.empty() && digits.back() == '9')
            digits.pop_back();
        if (digits.empty()) {
            digits = "1";
            ++exponent;
        } else {
            ++digits.back();
        }
    }
    Normalize(*this);
}

char Decimal::DigitAt(int power) const {
    const int index = exponent - power;
    if (index < 0 || index >= static_cast<int>(digits.size())) return '0';
    return digits[static_cast<std::size_t>(index)];
}

} // namespace zorvane
