#include "platetext/LineReader.h"

#include "model/WellStyle.h"
#include "platetext/LineParts.h"
#include "runtime/Text.h"
#include "runtime/TextFunctions.h"
#include "support/TStringPair.h"

#include <algorithm>
#include <array>

namespace zorvane {

LineCode cmPlate::LineReader::Read(std::string_view line) {
    line = TrimStart(line);
    if (line.empty()) return LineCode::Empty;
    if (IsCommentLine(line)) {
        if (plate_.reader_.inPlate)
            plate_.Comment.append(Blanked(Trim(line.substr(1)))).append("\r\n");
        return LineCode::Empty;
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

LineCode cmPlate::LineReader::ReadOutsidePlate() {
    const KeywordTraits* const traits = FindKeyword(keyword_);
    if (traits && traits->keyword == Keyword::Include) return LineCode::IncludeOutside;
    if (!traits || traits->keyword != Keyword::Plate) return LineCode::StrayLine;
    OpenPlate();
    return LineCode::PlateOpened;
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

LineCode cmPlate::LineReader::ReadInsidePlate() {
    const KeywordTraits* const traits = FindKeyword(keyword_);
    if (traits && traits->ofSubWell) ReadSubWellValue(*traits);
    if (traits && !traits->ofSubWell) ReadPlateValue(traits->keyword);
    AppendTrailingComment();
    if (!traits) {
        Record(keyword_, argument_);
        return LineCode::UnknownKeyword;
    }
    switch (traits->keyword) {
    case Keyword::End:
    case Keyword::Plate:
    case Keyword::Include:
        return LineCode::PlateComplete;
    case Keyword::Tag:
    case Keyword::TagList:
        return LineCode::Applied; // all tags are recorded together
    default:
        Record(keyword_, argument_);
        return LineCode::Applied;
    }
}

void cmPlate::LineReader::AppendTrailingComment() {
    const std::size_t mark = commentPlace_.find_first_of(kCommentMarks);
    if (mark == commentPlace_.npos) return;
    String& comment = plate_.Comment;
    if (!EqualNoCase(keyword_, TraitsOf(Keyword::Plate).name))
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

void cmPlate::LineReader::ReadPlateValue(Keyword keyword) {
    switch (keyword) {
    case Keyword::Rows:
        plate_.rows_ = WholeValue();
        break;
    case Keyword::Cols:
        plate_.cols_ = WholeValue();
        break;
    case Keyword::RowLabel:
        return ReadRowLabel();
    case Keyword::ColLabel:
        return ReadColumnLabel();
    case Keyword::XPitch:
        plate_.xPitch_ = Value();
        break;
    case Keyword::YPitch:
        plate_.yPitch_ = Value();
        break;
    case Keyword::XOverall:
        plate_.xOverall_ = Value();
        break;
    case Keyword::YOverall:
        plate_.yOverall_ = Value();
        break;
    case Keyword::Height:
        plate_.height_ = Value();
        break;
    case Keyword::ShelfDepth:
        return ReadShelfDepth();
    case Keyword::Tag:
        return ReadTag();
    case Keyword::TagList:
        return ReadTagList();
    case Keyword::Xyz:
    case Keyword::Xyzv:
        return ReadCoordinates();
    case Keyword::Well:
        return ReadWell();
    default:
        break;
    }
}

void cmPlate::LineReader::ReadSubWellValue(const KeywordTraits& traits) {
    WellDetails& subWell = SubWell();
    if (traits.keyword == Keyword::Style) {
        if (const auto code = WellStyleCode(firstArgument_)) subWell.Style(*code);
        return;
    }
    const Single value = Value();
    (subWell.*traits.setNumber)(value);
    // A rim that is given one thickness has it on all sides.
    if (traits.keyword == Keyword::RimWidth && subWell.RimHeight() == 0) subWell.RimHeight(value);
}

void cmPlate::LineReader::ReadColumnLabel() {
    plate_.columnLabel_ = firstArgument_;
    plate_.columnDirection_ = DirectionOf(firstArgument_);
}

void cmPlate::LineReader::ReadRowLabel() {
    plate_.rowLabel_ = firstArgument_;
    plate_.rowDirection_ = DirectionOf(firstArgument_);
}

void cmPlate::LineReader::ReadShelfDepth() {
    // Libraries write -0.5 for "no shelf".
    const Single value = Value();
    plate_.shelfDepth_ = value == -0.5F ? kNoShelf : value;
}

void cmPlate::LineReader::ReadCoordinates() {
    plate_.available_ = false;
    if (UpperText(plate_.CoordinateSystem) != keyword_) return;
    plate_.available_ = true;
    if (!firstArgument_.empty()) plate_.defaultRotation_ = WholeValue();
    // The first number is the rotation and X both: existing libraries are written that way.
    std::array<Single, 3> coordinates{};
    std::string_view words = argument_;
    commentPlace_ = {};
    for (Single& each : coordinates) {
        const std::string_view word = NextWord(words);
        if (word.empty()) break;
        each = LeadingSingle(word);
        commentPlace_ = word;
    }
    plate_.defaultX_ = coordinates[0];
    plate_.defaultY_ = coordinates[1];
    plate_.defaultZ_ = coordinates[2];
}

void cmPlate::LineReader::ReadTag() {
    AddTag(argument_);
    RecordTags();
}

void cmPlate::LineReader::ReadTagList() {
    std::string_view words = argument_;
    for (auto word = NextWord(words); !word.empty() && word.front() != ';'; word = NextWord(words))
        AddTag(word);
    commentPlace_ = {};
    RecordTags();
}

void cmPlate::LineReader::AddTag(std::string_view tag) {
    plate_.Tags.Add(std::make_shared<TStringPair>(String(tag), String(tag)));
}

void cmPlate::LineReader::RecordTags() {
    if (plate_.reader_.tagsToRecord) return;
    // The list takes its place now, and its value once no more tags come.
    Record(TraitsOf(Keyword::TagList).name, {}, -1);
    plate_.reader_.tagsToRecord = true;
}

void cmPlate::LineReader::ReadWell() {
    const std::string_view name = firstArgument_.empty() ? kDefaultSubWell : firstArgument_;
    StartSubWell(name);
    plate_.RecordTags();
    plate_.reader_.prefix.assign(name).append(".");
}

} // namespace zorvane
