#include "platetext/LineReader.h"

#include "runtime/NumberText.h"
#include "runtime/Rounding.h"
#include "runtime/Text.h"
#include "runtime/TextFunctions.h"
#include "support/TStringPair.h"

#include <algorithm>

/// The anatomy of a line: keyword, argument, trailing comment, and how it is recorded.
namespace zorvane {

Long cmPlate::LineReader::Read(std::string_view line) {
    line = TrimStart(line);
    if (line.empty()) return kNothing;
    if (line.front() == ';') {
        if (plate_.reader_.inPlate)
            plate_.Comment.append(Blanked(Trim(line.substr(1)))).append("\r\n");
        return kNothing;
    }
    keyword_ = NextWord(line);
    TakeArgument(Trim(line));
    // One word, as most arguments are, has no TAB in it.
    if (!commentPlace_.empty()) TakeArgument(Blanked(argument_));
    return plate_.reader_.inPlate ? ReadInsidePlate() : ReadOutsidePlate();
}

void cmPlate::LineReader::TakeArgument(std::string_view argument) {
    argument_ = argument;
    firstArgument_ = NextWord(argument);
    commentPlace_ = argument;
}

std::string_view cmPlate::LineReader::Blanked(std::string_view text) {
    if (text.find('\t') == text.npos) return text;
    String& copy = plate_.reader_.blanked;
    copy = text;
    std::replace(copy.begin(), copy.end(), '\t', ' ');
    return copy;
}

Long cmPlate::LineReader::ReadOutsidePlate() {
    if (EqualNoCase(keyword_, "INCLUDE")) return kIncludeOutside;
    if (!EqualNoCase(keyword_, "PLATE")) return kStrayLine;
    OpenPlate();
    return kPlateOpened;
}

void cmPlate::LineReader::OpenPlate() {
    plate_.plateName_ = firstArgument_;
    AppendTrailingComment();
    plate_.layout_->Clear();
    plate_.reader_.subWell = nullptr;
    plate_.reader_.prefix.clear();
    plate_.defaultX_ = plate_.defaultY_ = plate_.defaultZ_ = 0;
    plate_.shelfDepth_ = kNoShelf;
    plate_.available_ = true;
    // The label directions stay as they are until a label line sets them.
    plate_.columnLabel_ = "1";
    plate_.rowLabel_ = "A";
    plate_.reader_.inPlate = true;
}

Long cmPlate::LineReader::ReadInsidePlate() {
    const Keyword& keyword = FindKeyword(keyword_);
    keyword.apply(*this);
    AppendTrailingComment();
    if (keyword.recorded) Record(keyword_, argument_);
    return keyword.code;
}

void cmPlate::LineReader::AppendTrailingComment() {
    const std::size_t mark = commentPlace_.find_first_of(";'");
    if (mark == commentPlace_.npos) return;
    String& comment = plate_.Comment;
    if (!EqualNoCase(keyword_, "PLATE"))
        comment.append(keyword_).append(" ").append(firstArgument_).append(" : ");
    comment.append(Trim(commentPlace_.substr(mark + 1))).append("\r\n");
}

void cmPlate::LineReader::Record(std::string_view name, std::string_view value, Integer position) {
    // Definitions of one library mostly record the same properties in the same order.
    if (TStringPair* const pair = plate_.Properties.FindNext(plate_.reader_.prefix, name))
        return pair->Value(value);
    String& fullName = plate_.reader_.propertyName;
    fullName.assign(plate_.reader_.prefix).append(name);
    plate_.SetProperty(fullName, value, position);
}

Single cmPlate::LineReader::Value() const { return LeadingSingle(firstArgument_); }

Integer cmPlate::LineReader::WholeValue() const { return ToInteger(Value()); }

WellDetails& cmPlate::LineReader::SubWell() {
    // The recorded properties of a DEFAULT made here stand at plate level: the prefix stays.
    if (!plate_.reader_.subWell) StartSubWell(kDefaultSubWell);
    return *plate_.reader_.subWell;
}

void cmPlate::LineReader::StartSubWell(std::string_view name) {
    auto subWell = std::make_shared<WellDetails>();
    subWell->WellName(name);
    plate_.reader_.subWell = plate_.layout_->AddSubWell(subWell, -1);
}

} // namespace zorvane
