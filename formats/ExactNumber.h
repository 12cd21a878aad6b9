#pragma once

#include "runtime/Types.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace zorvane {

/// A number as a file writes it, and its value: exact to twelve decimals, so that the difference of
/// two lengths has the digits that a person would write.
class ExactNumber {
  public:
    /// Numbers farther from zero are refused; no plate is 4 kilometres long or holds 4 litres.
    static constexpr std::int64_t kLargest = 4'000'000;
    /// How many units make 1.
    static constexpr std::int64_t kOne = 1'000'000'000'000;

    ExactNumber() : text_("0") {}
    explicit ExactNumber(std::int64_t units);

    /// Digits with an optional sign, point and exponent. Nothing for another text, for one of more
    /// than 64 characters, and for a number beyond kLargest.
    static std::optional<ExactNumber> Parse(std::string_view text);
    /// The number with the fewest digits that is the same Single; nothing beyond kLargest.
    static std::optional<ExactNumber> Of(Single value);

    /// As it was written; of a result, all its decimals and no more.
    const String& Text() const { return text_; }
    std::int64_t Units() const { return units_; }
    Double Value() const { return static_cast<Double>(units_) / static_cast<Double>(kOne); }

    friend ExactNumber operator+(const ExactNumber& a, const ExactNumber& b) {
        return ExactNumber(a.units_ + b.units_);
    }
    friend ExactNumber operator-(const ExactNumber& a, const ExactNumber& b) {
        return ExactNumber(a.units_ - b.units_);
    }

  private:
    std::int64_t units_ = 0;
    String text_;
};

/// Whether two numbers are the same but for what programs that compute in binary leave behind: less
/// than 0.0005, half of what is promised for lengths.
bool SameNumber(const ExactNumber& a, const ExactNumber& b);

} // namespace zorvane
