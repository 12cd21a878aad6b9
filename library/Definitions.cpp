#include "library/LibraryText.h"
#include "library/TextLines.h"
#include "platetext/LineParts.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"

#include <algorithm>

/// Changes to the text of one definition.
namespace zorvane {

namespace {

/// Leaves out the last comment line with each of the texts, in any letter case: a comment that the
/// reader makes of a line begins with the keyword, which the writer spells in its own way.
String WithoutComments(const String& definition, const std::vector<String>& comments) {
    std::vector<TextLine> lines = LinesOf(definition);
    for (const String& comment : comments) {
        const auto same = std::find_if(lines.rbegin(), lines.rend(), [&](const TextLine& line) {
            return IsCommentLine(line.text) &&
                   EqualNoCase(Trim(TrimStart(line.text).substr(1)), comment);
        });
        if (same != lines.rend()) lines.erase(std::next(same).base());
    }
    String text;
    for (const TextLine& line : lines)
        text.append(line.text).append(line.end);
    return text;
}

} // namespace

String NameIn(std::string_view definition) {
    for (const TextLine& line : LinesOf(definition)) {
        const LineParts parts(line.text);
        if (EqualNoCase(parts.keyword, "PLATE")) return String(parts.first);
    }
    return {};
}

String Renamed(const String& definition, const String& name) {
    if (name.empty() || name.front() == ';' || name.find_first_of(" \t\r\n") != name.npos) {
        Raise(ErrorNumber::InvalidProcedureCall,
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

cmPlate PlateIn(const String& text) {
    TextFile file;
    file.OpenText(text);
    cmPlate plate;
    plate.ReadNextPlate(file);
    return plate;
}

std::vector<String> CommentLines(std::string_view comment) {
    std::vector<String> lines;
    for (const TextLine& line : LinesOf(comment))
        lines.emplace_back(Trim(line.text));
    return lines;
}

String WithoutEchoes(const String& definition) {
    String others;
    for (const TextLine& line : LinesOf(definition))
        if (!IsCommentLine(line.text)) others.append(line.text).append(line.end);
    return WithoutComments(definition, CommentLines(PlateIn(others).Comment));
}

String WithoutCommentsAfter(const String& definition, const PlateBlock& block) {
    return WithoutComments(definition, block.commentsAfter);
}

} // namespace zorvane
