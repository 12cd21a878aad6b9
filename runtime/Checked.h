#pragma once

#include "runtime/RuntimeError.h"
#include "runtime/Types.h"

#include <compare>
#include <concepts>
#include <cstdint>
#include <limits>

namespace zorvane {

/// An integer whose arithmetic fails instead of wrapping: error 6 when a value or an intermediate
/// result does not fit T, error 11 on division by zero. Division truncates towards zero and the
/// remainder keeps the sign of the dividend.
///
/// Wrap the first operand and the rest reads like arithmetic: `Checked(row) * cols + col`.
template <class T>
class CheckedNumber {
  public:
    constexpr CheckedNumber(std::int64_t value) : value_(Narrow(value)) {}

    constexpr T Value() const { return value_; }
    /// Converts to exactly T, so that mixed expressions stay checked instead of decaying to int.
    template <std::same_as<T> U>
    constexpr operator U() const {
        return value_;
    }

    friend constexpr CheckedNumber operator+(CheckedNumber a, CheckedNumber b) {
        return a.Wide() + b.Wide();
    }
    friend constexpr CheckedNumber operator-(CheckedNumber a, CheckedNumber b) {
        return a.Wide() - b.Wide();
    }
    friend constexpr CheckedNumber operator*(CheckedNumber a, CheckedNumber b) {
        return a.Wide() * b.Wide();
    }
    friend constexpr CheckedNumber operator/(CheckedNumber a, CheckedNumber b) {
        return a.Wide() / b.Divisor();
    }
    friend constexpr CheckedNumber operator%(CheckedNumber a, CheckedNumber b) {
        return a.Wide() % b.Divisor();
    }
    // The check takes the 0 in the comparison that the compiler writes for a null pointer.
    // NOLINTNEXTLINE(modernize-use-nullptr)
    friend constexpr auto operator<=>(CheckedNumber, CheckedNumber) = default;

  private:
    constexpr std::int64_t Wide() const { return value_; }
    constexpr std::int64_t Divisor() const {
        if (value_ == 0) Raise(ErrorNumber::DivisionByZero);
        return value_;
    }
    static constexpr T Narrow(std::int64_t value) {
        if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max())
            Raise(ErrorNumber::Overflow);
        return static_cast<T>(value);
    }

    T value_;
};

/// The 16-bit arithmetic of rows, columns and well numbers.
using Checked = CheckedNumber<Integer>;
using CheckedLong = CheckedNumber<Long>;

} // namespace zorvane
