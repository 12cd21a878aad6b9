#include "apps/library/LibraryText.h"
#include "apps/library/TextLines.h"
#include "platetext/LineParts.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"

#include <algorithm>

/// Changes to the text of one definition.
namespace zorvane {

String NameIn(std::string_view definition) {
    for (const TextLine& line : LinesOf(definition)) {
        const LineParts parts(line.text);
        if (EqualNoCase(parts.keyword, "PLATE")) return String(parts.first);
    }
    return {};
}

String Renamed(const String& definition, const String& name) {
    if (name.empty() || name.front() == ';' || name.find_first_of(" \t\r\n") != name.npos) {
        throw RuntimeError(static_cast<Long>(ErrorNumber::InvalidProcedureCall), "Zorvane",
                           "the name of a plate is one word that does not begin with \";\"");
    }
    String text;
    for (const TextLine& line : LinesOf(definition)) {
        const LineParts parts(line.text);
        const bool opens = text.empty() && EqualNoCase(parts.keyword, "PLATE");
        text.append(opens ? "Plate " + name : String(line.text)).append(line.end);
    }
    return text;
}

String WithoutCommentsBehind(const String& definition, const PlateBlock& block) {
    std::vector<TextLine> lines = LinesOf(definition);
    for (const String& comment : block.commentsBehind) {
        const auto same = std::find_if(lines.rbegin(), lines.rend(), [&](const TextLine& line) {
            const std::string_view text = TrimStart(line.text);
            return text.substr(0, 1) == ";" && Trim(text.substr(1)) == comment;
        });
        if (same != lines.rend()) lines.erase(std::next(same).base());
    }
    String text;
    for (const TextLine& line : lines)
        text.append(line.text).append(line.end);
    return text;
}

} // namespace zorvane
