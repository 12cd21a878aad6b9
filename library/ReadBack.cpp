#include "library/ReadBack.h"

#include "library/LibraryText.h"
#include "library/LineDifference.h"
#include "library/TextLines.h"
#include "platetext/LineParts.h"
#include "runtime/Text.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace zorvane {

namespace {

/// The values of a plate, without its comments, which grow where lines have trailing ones.
String ValuesOf(cmPlate& plate) {
    const String comment = std::exchange(plate.Comment, String());
    String values = plate.AsText();
    plate.Comment = comment;
    return values;
}

String Quoted(std::string_view line) { return "\"" + String(Trim(line)) + "\""; }

/// The first line that differs, and the sub-well that it is about.
String FirstDifference(const String& before, const String& after) {
    const auto old = LinesOf(before);
    const auto now = LinesOf(after);
    const auto isWell = [](const TextLine& line) { return LineParts(line.text).keyword == "Well"; };
    std::size_t at = 0;
    while (at < std::min(old.size(), now.size()) && old[at].text == now[at].text)
        ++at;
    const String was = at < old.size() ? Quoted(old[at].text) : "nothing";
    const String is = at < now.size() ? Quoted(now[at].text) : "nothing";
    const auto well =
        std::find_if(old.rend() - static_cast<std::ptrdiff_t>(at), old.rend(), isWell);
    const bool inWell = well != old.rend() && at < old.size() && !isWell(old[at]);
    return was + (inWell ? " in " + Quoted(well->text) : String()) + " as " + is;
}

} // namespace

String ValueNotReadBack(cmPlate& plate) {
    cmPlate again = PlateIn(plate.Text());
    const String before = ValuesOf(plate);
    const String after = ValuesOf(again);
    return after == before ? String() : FirstDifference(before, after);
}

String LineNotReadBack(const String& definition) {
    cmPlate again;
    again.SetFromText(WithoutEchoes(definition));
    for (const ChangedLine& line : DefinitionDifference(definition, again.Text())) {
        if (line.change == LineChange::Removed && !IsCommentLine(line.text))
            return String(Trim(line.text));
    }
    return {};
}

} // namespace zorvane
