#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace zorvane {

/// A point with up to four components X, Y, Z and V, each of which knows whether it has been set.
class ZORVANE_EXPORT Coordinate {
  public:
    /// A component, or 0 when it has not been set.
    Single X() const { return WhenSet(0); }
    Single Y() const { return WhenSet(1); }
    Single Z() const { return WhenSet(2); }
    Single V() const { return WhenSet(3); }
    void X(Single value) { Set(0, value); }
    void Y(Single value) { Set(1, value); }
    void Z(Single value) { Set(2, value); }
    void V(Single value) { Set(3, value); }

    /// A component by number: 0 = X, 1 = Y, 2 = Z, 3 = V. Reads what is stored whether or not it
    /// has been set. Error 9 for any other number.
    Single Component(Integer index) const;
    void Component(Integer index, Single value);

    /// "(1.0, 2.5, 0.25)", or "(Not Set)" when no component is set. When V is set the text has a
    /// fourth number, which repeats Z.
    String AsText() const;

    /// Takes the source's components, unset ones as 0, and marks all four as set.
    void CopyFrom(const Coordinate& source);

    /// The distance from the origin over all four stored components; 0 when none is set.
    Single Magnitude() const;

    /// The component-wise sum, all set. This point's own components count as set afterwards.
    Coordinate Sum(const Coordinate& other);

    /// True when any component is set.
    Boolean IsSet() const { return set_ != 0; }

    /// Zeroes and unsets every component.
    void Clear() { *this = Coordinate(); }

  private:
    static constexpr std::uint16_t kAllSet = 15;

    static std::uint16_t Bit(std::size_t index) { return static_cast<std::uint16_t>(1U << index); }
    bool HasSet(std::size_t index) const { return (set_ & Bit(index)) != 0; }
    Single WhenSet(std::size_t index) const { return HasSet(index) ? components_[index] : 0; }
    void Set(std::size_t index, Single value) {
        components_[index] = value;
        set_ = static_cast<std::uint16_t>(set_ | Bit(index));
    }

    std::array<Single, 4> components_{};
    std::uint16_t set_ = 0;
};

} // namespace zorvane
