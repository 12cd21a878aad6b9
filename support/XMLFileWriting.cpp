#include "runtime/Checked.h"
#include "runtime/NumberText.h"
#include "runtime/TextFunctions.h"
#include "support/XMLFile.h"

#include <algorithm>

namespace zorvane {

void XMLFile::OpenXMLSection(std::string_view section, std::string_view tag) {
    sections_.At(depth_) = section;
    WriteLine({"<", section, tag.empty() ? "" : " ", tag, ">"});
    depth_ = Checked(depth_) + 1;
}

void XMLFile::CloseXMLSection() {
    // Counted first: after one end too many every later step fails instead of writing on.
    depth_ = Checked(depth_) - 1;
    WriteLine({"</", sections_.At(depth_), ">"});
}

void XMLFile::WriteXMLData(std::string_view data) { WriteLine({data}); }

void XMLFile::WriteXMLMember(std::string_view memberName, std::string_view memberValue,
                             std::string_view tag, Boolean suppress) {
    if (memberValue.empty() && suppress) return;
    if (memberValue.empty() && tag.empty()) return WriteLine({"<", memberName, "/>"});
    WriteLine({"<", memberName, tag.empty() ? "" : " ", tag, ">", StringToXML(memberValue), "</",
               memberName, ">"});
}

void XMLFile::WriteXMLBooleanValue(std::string_view memberName, Boolean memberValue,
                                   Boolean suppressFalse) {
    if (suppressFalse && !memberValue) return;
    WriteXMLMember(memberName, memberValue ? "Yes" : "No");
}

void XMLFile::WriteXMLStringValue(std::string_view memberName, std::string_view memberValue,
                                  std::string_view tag) {
    if (memberValue.empty()) return;
    WriteXMLMember(memberName, QuoteText(memberValue, "\""), tag);
}

void XMLFile::WriteXMLIntegerValue(std::string_view memberName, Long memberValue,
                                   Boolean suppressZero) {
    if (suppressZero && memberValue == 0) return;
    WriteXMLMember(memberName, std::to_string(memberValue));
}

void XMLFile::WriteXMLFloatValue(std::string_view memberName, Double memberValue,
                                 std::string_view formatString, Boolean suppressZero) {
    if (suppressZero && memberValue == 0) return;
    WriteXMLMember(memberName, formatString.empty() ? GeneralText(memberValue)
                                                    : FormatPicture(memberValue, formatString));
}

void XMLFile::WriteXMLFloatValue(std::string_view memberName, std::string_view memberValue,
                                 std::string_view formatString, Boolean suppressZero) {
    WriteXMLFloatValue(memberName, ParseDouble(memberValue), formatString, suppressZero);
}

void XMLFile::WriteLine(std::initializer_list<std::string_view> parts) {
    try {
        if (!openForWriting_) {
            if (!writtenTo_) output_.OpenOutput(fileName_);
            openForWriting_ = true;
            Emit(R"(<?xml version="1.0"?>)");
        }
        WriteIndented(parts);
    } catch (const RuntimeError&) {
        openForWriting_ = false;
        output_ = TextFile();
        RaiseNotWritten();
    }
}

void XMLFile::WriteIndented(std::initializer_list<std::string_view> parts) {
    written_.assign(static_cast<std::size_t>(std::max<Integer>(depth_, 0)), ' ');
    for (const std::string_view part : parts)
        written_ += part;
    Emit(written_);
}

void XMLFile::Emit(std::string_view line) {
    if (!writtenTo_) return output_.WriteLine(line);
    writtenTo_->append(line).append("\r\n");
}

void XMLFile::RaiseNotWritten() const {
    Raise(ErrorNumber::XMLNotWritten, "Could not write data to XMLFile <" + fileName_ + ">",
          "XMLFile");
}

void XMLFile::CloseXMLFile() {
    openForReading_ = false;
    openForWriting_ = false;
    input_.Close();
    try {
        output_.Close();
    } catch (const RuntimeError&) {
        RaiseNotWritten();
    }
}

} // namespace zorvane
