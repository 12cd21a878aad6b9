#include "model/WellStyle.h"
#include "model/cmPlate.h"
#include "platetext/Keywords.h"
#include "runtime/Text.h"
#include "support/TStringPair.h"

/// Plate definitions as text: replayed from the recorded properties (Text), or from the values
/// (AsText). Lines end with CR LF.
namespace zorvane {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kIndent = "    ";

/// What AsText writes, in its order.
constexpr Keyword kPlateValues[] = {
    Keyword::Cols,   Keyword::Rows,     Keyword::ColLabel, Keyword::RowLabel, Keyword::XPitch,
    Keyword::YPitch, Keyword::XOverall, Keyword::YOverall, Keyword::Height,   Keyword::ShelfDepth,
};
constexpr Keyword kSubWellValues[] = {
    Keyword::Style,      Keyword::XOffset,    Keyword::YOffset,   Keyword::Depth,
    Keyword::WellSizeX,  Keyword::WellSizeY,  Keyword::RimHeight, Keyword::RimWidth,
    Keyword::RimCenterX, Keyword::RimCenterY, Keyword::Volume,
};

void AppendLine(String& text, std::string_view indent, std::string_view keyword,
                std::string_view value) {
    text.append(indent).append(keyword).append(" ").append(value).append(kLineEnd);
}

/// The line that opens a definition, and its comments; what follows their last CR LF is left out.
String Heading(std::string_view plateName, std::string_view comment) {
    String text;
    AppendLine(text, "", TraitsOf(Keyword::Plate).written, plateName);
    for (std::size_t end = comment.find(kLineEnd); end != comment.npos;
         end = comment.find(kLineEnd)) {
        AppendLine(text, "", ";", comment.substr(0, end));
        comment.remove_prefix(end + kLineEnd.size());
    }
    return text;
}

void AppendSubWellProperty(String& text, std::string_view keyword, std::string_view value) {
    const std::string_view well = TraitsOf(Keyword::Well).written;
    if (EqualNoCase(keyword, well)) {
        text += kLineEnd;
        AppendLine(text, kIndent, well, value);
    } else {
        AppendLine(text, "      ", keyword, value);
    }
}

} // namespace

String cmPlate::Text() const {
    String text = Heading(plateName_, Comment);
    String subWells;
    for (const auto& pair : Properties) {
        const std::string_view name = pair->Name();
        const std::size_t dot = name.find('.');
        if (dot == name.npos) {
            AppendLine(text, kIndent, UpperText(name), pair->Value());
        } else {
            AppendSubWellProperty(subWells, name.substr(dot + 1), pair->Value());
        }
    }
    return text + subWells;
}

String cmPlate::AsText() const {
    String text = Heading(plateName_, Comment);
    const String tags = TagListText();
    if (!tags.empty()) AppendLine(text, kIndent, TraitsOf(Keyword::TagList).written, tags);
    for (const Keyword keyword : kPlateValues)
        AppendLine(text, kIndent, TraitsOf(keyword).written, ValueText(keyword));
    text += kLineEnd;
    for (const auto& subWell : *layout_)
        text += SubWellText(*subWell, kIndent);
    return text;
}

String cmPlate::SubWellText(const WellDetails& subWell, std::string_view indent) {
    String text;
    AppendLine(text, indent, TraitsOf(Keyword::Well).written, subWell.WellName());
    const String inner = String(indent) + "  ";
    for (const Keyword keyword : kSubWellValues)
        AppendLine(text, inner, TraitsOf(keyword).written, SubWellValueText(subWell, keyword));
    return text.append(kLineEnd);
}

Integer cmPlate::WritePlate(TextFile& file) const {
    // The file's own line end makes the empty line that separates plates.
    file.WriteLine(Text());
    return 0;
}

String cmPlate::StyleText(Long style) {
    const WellStyle* const found = FindWellStyle(style);
    return found ? String(found->name) : String();
}

} // namespace zorvane
