#include "model/WellStyle.h"
#include "model/cmPlate.h"
#include "runtime/NumberText.h"
#include "runtime/Text.h"
#include "support/TStringPair.h"

/// Plate definitions as text: replayed from the recorded properties (Text), or from the values
/// (AsText). Lines end with CR LF.
namespace zorvane {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kIndent = "    ";

void AppendLine(String& text, std::string_view indent, std::string_view keyword,
                std::string_view value) {
    text.append(indent).append(keyword).append(" ").append(value).append(kLineEnd);
}

/// The line that opens a definition, and its comments; what follows their last CR LF is left out.
String Heading(std::string_view plateName, std::string_view comment) {
    String text;
    AppendLine(text, "", "Plate", plateName);
    for (std::size_t end = comment.find(kLineEnd); end != comment.npos;
         end = comment.find(kLineEnd)) {
        AppendLine(text, "", ";", comment.substr(0, end));
        comment.remove_prefix(end + kLineEnd.size());
    }
    return text;
}

void AppendSubWellProperty(String& text, std::string_view keyword, std::string_view value) {
    if (EqualNoCase(keyword, "Well")) {
        text += kLineEnd;
        AppendLine(text, kIndent, "Well", value);
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
    const auto line = [](String& text, std::string_view keyword, std::string_view value) {
        AppendLine(text, kIndent, keyword, value);
    };
    String text = Heading(plateName_, Comment);
    const String tags = TagListText();
    if (!tags.empty()) line(text, "TAGLIST", tags);
    line(text, "Cols", std::to_string(cols_));
    line(text, "Rows", std::to_string(rows_));
    line(text, "ColLabel", columnLabel_);
    line(text, "RowLabel", rowLabel_);
    line(text, "Xpitch", FormatPicture(xPitch_, "0.000"));
    line(text, "Ypitch", FormatPicture(yPitch_, "0.000"));
    line(text, "Xoverall", FormatPicture(xOverall_, "0.00"));
    line(text, "Yoverall", FormatPicture(yOverall_, "0.00"));
    line(text, "Height", FormatPicture(height_, "0.00"));
    line(text, "ShelfDepth", FormatPicture(shelfDepth_, "0.000"));
    text += kLineEnd;
    for (const auto& subWell : *layout_)
        text += SubWellText(*subWell, kIndent);
    return text;
}

String cmPlate::SubWellText(const WellDetails& subWell, std::string_view indent) {
    String text;
    AppendLine(text, indent, "Well", subWell.WellName());
    const String inner = String(indent) + "  ";
    const auto number = [&](std::string_view keyword, Single value) {
        AppendLine(text, inner, keyword, FormatPicture(value, "0.00"));
    };
    AppendLine(text, inner, "Style", StyleText(subWell.Style()));
    number("Xoffset", subWell.xOffset());
    number("Yoffset", subWell.yOffset());
    number("Depth", subWell.Depth());
    number("WellSizeX", subWell.WellSizeX());
    number("WellSizeY", subWell.WellSizeY());
    number("RimHeight", subWell.RimHeight());
    number("RimWidth", subWell.RimWidth());
    number("RimCenterX", subWell.RimCenterX());
    number("RimCenterY", subWell.RimCenterY());
    number("Volume", subWell.MaxVolume());
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
