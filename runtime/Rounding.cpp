#include "runtime/Rounding.h"

#include "runtime/RuntimeError.h"

#include <cmath>
#include <limits>

namespace zorvane {

namespace {

template <class T>
T ToWhole(Double value) {
    const Double rounded = RoundHalfEven(value);
    // Written so that a NaN fails too.
    if (!(rounded >= std::numeric_limits<T>::min() && rounded <= std::numeric_limits<T>::max()))
        Raise(ErrorNumber::Overflow);
    return static_cast<T>(rounded);
}

} // namespace

Double RoundHalfEven(Double value) {
    const Double below = std::floor(value);
    const Double rest = value - below;
    if (rest < 0.5) return below;
    if (rest > 0.5) return below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

Integer ToInteger(Double value) { return ToWhole<Integer>(value); }

Long ToLong(Double value) { return ToWhole<Long>(value); }

Single ToSingle(Double value) {
    if (!(std::fabs(value) <= std::numeric_limits<Single>::max())) Raise(ErrorNumber::Overflow);
    return static_cast<Single>(value);
}

} // namespace zorvane
