#pragma once

#include "control/PlateTypes.h"

#include <array>
#include <span>
#include <string_view>

namespace zorvane {

struct Enumerator {
    std::string_view name;
    Long value;
    std::string_view help;
};

/// One of the enumerations that members of the control take.
struct Enumeration {
    std::string_view name;
    std::string_view help;
    std::span<const Enumerator> values;
};

inline constexpr std::array kWellSelectActions{
    Enumerator{"wsSilent", wsSilent, "Leaves every selection alone."},
    Enumerator{"wsSingle", wsSingle, "Clears the selection, then selects the well."},
    Enumerator{"wsAddToSelection", wsAddToSelection,
               "Toggles the well; the others stay selected when MultipleSelect is true."}};

inline constexpr std::array kArrayFillOrders{
    Enumerator{"foTopLeftHorizontal", foTopLeftHorizontal, "From the top left, row by row."},
    Enumerator{"foTopLeftVertical", foTopLeftVertical, "From the top left, column by column."},
    Enumerator{"foTopRightHorizontal", foTopRightHorizontal, "From the top right, row by row."},
    Enumerator{"foTopRightVertical", foTopRightVertical, "From the top right, column by column."},
    Enumerator{"foBottomLeftHorizontal", foBottomLeftHorizontal,
               "From the bottom left, row by row."},
    Enumerator{"foBottomLeftVertical", foBottomLeftVertical,
               "From the bottom left, column by column."},
    Enumerator{"foBottomRightHorizontal", foBottomRightHorizontal,
               "From the bottom right, row by row."},
    Enumerator{"foBottomRightVertical", foBottomRightVertical,
               "From the bottom right, column by column."}};

inline constexpr std::array kEnumerations{
    Enumeration{"WellSelectAction",
                "What SetWell does with the selection besides making the well current.",
                kWellSelectActions},
    Enumeration{"ArrayFillOrder", "In which order FillArray walks its block.", kArrayFillOrders}};

/// The enumeration that describes a type; null for a type that is none.
template <class Type>
inline constexpr const Enumeration* kEnumerationOf = nullptr;
template <>
inline constexpr const Enumeration* kEnumerationOf<WellSelectAction> = &kEnumerations[0];
template <>
inline constexpr const Enumeration* kEnumerationOf<ArrayFillOrder> = &kEnumerations[1];

} // namespace zorvane
