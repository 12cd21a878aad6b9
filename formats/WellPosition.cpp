#include "formats/WellPosition.h"

#include "runtime/RuntimeError.h"
#include "runtime/Text.h"

#include <algorithm>
#include <string>

namespace zorvane {

namespace {

constexpr Long kLetters = 26;

bool IsLetter(char c) { return ToUpperAscii(c) >= 'A' && ToUpperAscii(c) <= 'Z'; }

/// The labels of rows are printable ASCII characters from "A" on.
constexpr Long kLabelledRows = '~' - 'A' + 1;

} // namespace

std::optional<Long> ParseRow(std::string_view name) {
    Long row = 0;
    for (const char c : name) {
        if (!IsLetter(c)) return std::nullopt;
        row = row * kLetters + (ToUpperAscii(c) - 'A' + 1);
        if (row > kMostWells) return std::nullopt;
    }
    return name.empty() ? std::nullopt : std::optional(row - 1);
}

std::optional<Long> ParseCol(std::string_view name) {
    Long col = 0;
    for (const char c : name) {
        if (c < '0' || c > '9') return std::nullopt;
        col = col * 10 + (c - '0');
        if (col > kMostWells) return std::nullopt;
    }
    return col < 1 ? std::nullopt : std::optional(col - 1);
}

std::optional<WellPosition> ParsePosition(std::string_view name) {
    const auto letters = static_cast<std::size_t>(
        std::find_if_not(name.begin(), name.end(), IsLetter) - name.begin());
    const auto row = ParseRow(name.substr(0, letters));
    const auto col = ParseCol(name.substr(letters));
    if (!row || !col) return std::nullopt;
    return WellPosition{*row, *col};
}

String RowName(Long row) {
    String name;
    for (Long rest = row + 1; rest > 0; rest = (rest - 1) / kLetters)
        name.insert(name.begin(), static_cast<char>('A' + (rest - 1) % kLetters));
    return name;
}

String PositionName(const WellPosition& position) {
    return RowName(position.row) + std::to_string(position.col + 1);
}

String RowLabel(Long row) {
    return row < kLabelledRows ? String(1, static_cast<char>('A' + row)) : String();
}

WellPosition NamedPosition(const cmPlate& plate, Integer row, Integer col) {
    const String rowLegend = plate.RowLegend(row);
    const String colLegend = plate.ColumnLegend(col);
    const String first = plate.RowLabel();
    const bool capitals = !first.empty() && first[0] >= 'A' && first[0] < 'a';
    const auto named = ParseCol(colLegend);
    if (!capitals || rowLegend.size() != 1 || rowLegend[0] < 'A' || !named) {
        Raise(
            ErrorNumber::InvalidProcedureCall,
            "the position " + rowLegend + colLegend +
                " has no name of a letter and a number: such names need rows labelled A, B, C and "
                "columns labelled 1, 2, 3, in either direction",
            "Zorvane::Formats");
    }
    return {rowLegend[0] - 'A', *named};
}

} // namespace zorvane
