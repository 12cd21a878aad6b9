#pragma once

#include "runtime/Types.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace zorvane {

enum class LineChange : std::uint8_t { Same, Removed, Added };

/// A line of a difference, without its line end.
struct ChangedLine {
    LineChange change = LineChange::Same;
    String text;

    bool operator==(const ChangedLine&) const = default;
};

/// Which numbers stand for the lines of two texts; equal numbers mean that nothing has changed.
struct LineNumbers {
    std::vector<std::size_t> before;
    std::vector<std::size_t> after;
};

/// What becomes of each line of two lists: first removed, then added ones, in the order of both.
/// For texts of some thousand lines it is as short as can be; longer ones are compared piece by
/// piece between lines that each has once, in nearly linear time.
std::vector<LineChange> Compare(const LineNumbers& lines);

/// The difference of two definitions as a reader of them sees it: the letter case of keywords,
/// indentation and blank lines do not count, and blank lines are not listed.
std::vector<ChangedLine> DefinitionDifference(std::string_view before, std::string_view after);

/// The difference of two texts byte for byte in the unified form, with three lines around each
/// change; empty when they are the same. The lines keep their line ends and end with LF.
String UnifiedDifference(std::string_view before, std::string_view after, const String& name);

} // namespace zorvane
