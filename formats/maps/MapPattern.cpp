#include "formats/maps/MapPattern.h"

#include "formats/PlateSource.h"
#include "formats/Quoted.h"
#include "runtime/Text.h"

#include <algorithm>
#include <optional>
#include <tuple>

namespace zorvane {

namespace {

constexpr std::string_view kEllipsis = "...";

std::vector<std::string_view> PartsOf(std::string_view pattern) {
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t comma = std::min(pattern.find(','), pattern.size());
        parts.push_back(Trim(pattern.substr(0, comma)));
        if (comma == pattern.size()) return parts;
        pattern.remove_prefix(comma + 1);
    }
}

[[noreturn]] void RefusePattern(std::string_view pattern, const char* what) {
    RefuseSource(Quoted(pattern) + " names no " + what);
}

/// The names in a pattern, and whether they are the first, second and last of a series.
template <class Name>
struct Names {
    std::vector<Name> list;
    bool series = false;
};

template <class Name>
Names<Name> NamesIn(std::string_view pattern, std::optional<Name> (*parse)(std::string_view),
                    const char* what) {
    Names<Name> names;
    const auto parts = PartsOf(pattern);
    names.series = parts.size() == 4 && parts[2] == kEllipsis;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (names.series && i == 2) continue;
        const auto name = parse(parts[i]);
        if (!name) RefusePattern(pattern, what);
        names.list.push_back(*name);
    }
    return names;
}

/// From the first to the last in steps that the second gives; nothing when they do not meet it.
std::vector<Long> Series(Long first, Long second, Long last) {
    const Long step = second - first;
    if (step == 0) return first == last ? std::vector<Long>{first} : std::vector<Long>{};
    if ((last - first) % step != 0 || (last - first) / step < 0) return {};
    std::vector<Long> series;
    for (Long at = first; at != last + step; at += step)
        series.push_back(at);
    return series;
}

std::vector<Long> LinesOfPattern(std::string_view pattern,
                                 std::optional<Long> (*parse)(std::string_view), const char* what) {
    const auto names = NamesIn(pattern, parse, what);
    if (!names.series) return names.list;
    auto lines = Series(names.list[0], names.list[1], names.list[2]);
    if (lines.empty()) RefusePattern(pattern, "series that ends as it says");
    return lines;
}

} // namespace

std::vector<Long> RowsOfPattern(std::string_view pattern) {
    return LinesOfPattern(pattern, ParseRow, "row");
}

std::vector<Long> ColsOfPattern(std::string_view pattern) {
    return LinesOfPattern(pattern, ParseCol, "column");
}

std::vector<WellPosition> WellsOfPattern(std::string_view pattern) {
    const auto names = NamesIn(pattern, ParsePosition, "well");
    if (!names.series) return names.list;
    const auto& [first, second, last] = std::tie(names.list[0], names.list[1], names.list[2]);
    const auto rows = Series(first.row, second.row, last.row);
    const auto cols = Series(first.col, second.col, last.col);
    if (rows.empty() || cols.empty()) RefusePattern(pattern, "series that ends as it says");
    if (rows.size() * cols.size() > static_cast<std::size_t>(kMostWells))
        RefusePattern(pattern, "wells of one plate: there are more than 32767");
    std::vector<WellPosition> wells;
    for (const Long row : rows) {
        for (const Long col : cols)
            wells.push_back({row, col});
    }
    return wells;
}

} // namespace zorvane
