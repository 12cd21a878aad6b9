#pragma once

#include "model/cmPlate.h"
#include "runtime/Types.h"

#include <optional>
#include <string_view>

namespace zorvane {

/// A well position as laboratory files name it: rows by letters, A to Z, then AA, AB and so on;
/// columns by numbers from 1. Here both count from 0.
struct WellPosition {
    Long row = 0;
    Long col = 0;

    friend bool operator==(const WellPosition&, const WellPosition&) = default;
    friend bool operator<(const WellPosition& a, const WellPosition& b) {
        return a.row != b.row ? a.row < b.row : a.col < b.col;
    }
};

/// No plate has more wells, and none more rows or columns.
inline constexpr Long kMostWells = 32767;

/// A row or a column by its name; nothing for another text, or beyond kMostWells. Letters can be
/// small ones, and columns can have leading zeros.
std::optional<Long> ParseRow(std::string_view name);
std::optional<Long> ParseCol(std::string_view name);
/// "A1", "h12", "AA01".
std::optional<WellPosition> ParsePosition(std::string_view name);

String RowName(Long row);
String PositionName(const WellPosition& position);

/// The label that a definition has for a row: the characters from "A" on, of which those after "Z"
/// are no letters. Empty for a row that has no such label.
String RowLabel(Long row);
/// The position in the rows and columns of a plate as laboratory files name it. Error 5 for a plate
/// whose rows are not labelled by capital letters, or whose columns by anything but numbers.
WellPosition NamedPosition(const cmPlate& plate, Integer row, Integer col);

} // namespace zorvane
