#include "model/Coordinate.h"

#include "runtime/NumberText.h"
#include "runtime/Rounding.h"
#include "runtime/RuntimeError.h"

#include <cmath>

namespace zorvane {

namespace {

std::size_t CheckedIndex(Integer index) {
    if (index < 0 || index > 3) Raise(ErrorNumber::SubscriptOutOfRange);
    return static_cast<std::size_t>(index);
}

} // namespace

Single Coordinate::Component(Integer index) const { return components_[CheckedIndex(index)]; }

void Coordinate::Component(Integer index, Single value) { Set(CheckedIndex(index), value); }

String Coordinate::AsText() const {
    if (!IsSet()) return "(Not Set)";
    const auto picture = [](Single value) { return FormatPicture(value, "0.0#"); };
    String text = "(" + picture(X()) + ", " + picture(Y()) + ", " + picture(Z());
    // Readers of this text know the fourth number as Z once more, not as V.
    if (HasSet(3)) text += ", " + picture(Z());
    return text + ")";
}

void Coordinate::CopyFrom(const Coordinate& source) {
    components_ = {source.X(), source.Y(), source.Z(), source.V()};
    set_ = kAllSet;
}

Single Coordinate::Magnitude() const {
    if (!IsSet()) return 0;
    Double squares = 0;
    for (const Double each : components_)
        squares += each * each;
    return ToSingle(std::sqrt(squares));
}

Coordinate Coordinate::Sum(const Coordinate& other) {
    Coordinate sum;
    sum.X(ToSingle(Double{components_[0]} + other.X()));
    sum.Y(ToSingle(Double{components_[1]} + other.Y()));
    sum.Z(ToSingle(Double{components_[2]} + other.Z()));
    sum.V(ToSingle(Double{components_[3]} + other.V()));
    set_ = kAllSet;
    return sum;
}

} // namespace zorvane
