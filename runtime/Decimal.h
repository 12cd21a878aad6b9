#pragma once

#include "runtime/Types.h"

namespace zorvane {

/// A finite number as decimal digits: the digits d1 d2 d3... stand for d1.d2d3... x 10^exponent.
/// There is neither a leading zero nor a trailing one; zero has no digits, no sign and exponent 0.
struct Decimal {
    bool negative = false;
    String digits;
    int exponent = 0;

    /// The value to 15 significant digits. Error 6 when it is not finite.
    explicit Decimal(Double value);
    /// The fewest digits that read back as the same value. Error 6 when it is not finite.
    explicit Decimal(Single value);

    /// Rounds half away from zero to that many places after the point.
    void Round(int places);
    /// The digit that stands for 10^power; 0 outside of the digits.
    char DigitAt(int power) const;
};

} // namespace zorvane
