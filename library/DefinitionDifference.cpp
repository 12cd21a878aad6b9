#include "library/LineDifference.h"
#include "library/LineNumbering.h"
#include "library/TextLines.h"
#include "platetext/LineParts.h"
#include "runtime/Text.h"

namespace zorvane {

namespace {

/// The same text for lines that the reader takes for the same.
String AsRead(std::string_view line) {
    line = Trim(line);
    if (line.substr(0, 1) == ";") return String(";").append(Trim(line.substr(1)));
    const LineParts parts(line);
    return UpperText(parts.keyword).append(" ").append(parts.argument);
}

std::vector<std::string_view> NonBlankLines(std::string_view definition) {
    std::vector<std::string_view> lines;
    for (const TextLine& line : LinesOf(definition))
        if (!Trim(line.text).empty()) lines.push_back(line.text);
    return lines;
}

} // namespace

std::vector<ChangedLine> DefinitionDifference(std::string_view before, std::string_view after) {
    const auto old = NonBlankLines(before);
    const auto now = NonBlankLines(after);
    LineNumbering numbering;
    LineNumbers numbers;
    for (const std::string_view line : old)
        numbers.before.push_back(numbering.NumberOf(AsRead(line)));
    for (const std::string_view line : now)
        numbers.after.push_back(numbering.NumberOf(AsRead(line)));

    std::vector<ChangedLine> lines;
    std::size_t i = 0;
    std::size_t j = 0;
    for (const LineChange change : Compare(numbers)) {
        const std::string_view text = change == LineChange::Removed ? old[i] : now[j];
        lines.push_back({change, String(text)});
        i += change != LineChange::Added ? 1 : 0;
        j += change != LineChange::Removed ? 1 : 0;
    }
    return lines;
}

} // namespace zorvane
