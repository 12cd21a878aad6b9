#include "model/cmPlate.h"

#include "model/LabelText.h"
#include "platetext/Keywords.h"
#include "runtime/Checked.h"
#include "runtime/NumberText.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"
#include "support/TStringPair.h"

#include <string>

/// The values of a definition and how they are recorded, and the numbers and labels of positions.
namespace zorvane {

namespace {

String TwoPlaces(Single value) { return FormatPicture(value, "0.00"); }
String ThreePlaces(Single value) { return FormatPicture(value, "0.000"); }

String Legend(std::string_view firstLabel, Integer direction, Integer position) {
    const Checked steps = Checked(direction) * position;
    if (IsNumber(firstLabel)) return GeneralText(LeadingNumber(firstLabel) + steps.Value());
    const CharacterAt first = LabelCharacter(firstLabel);
    return LabelText(Checked(first.code) + steps, first);
}

} // namespace

cmPlate::cmPlate() { Properties.ErrorOnFail = false; }

void cmPlate::Rows(Integer value) {
    rows_ = value;
    Record(Keyword::Rows);
}

void cmPlate::Cols(Integer value) {
    cols_ = value;
    Record(Keyword::Cols);
}

void cmPlate::XPitch(Single value) {
    xPitch_ = value;
    Record(Keyword::XPitch);
}

void cmPlate::YPitch(Single value) {
    yPitch_ = value;
    Record(Keyword::YPitch);
}

void cmPlate::xOverall(Single value) {
    xOverall_ = value;
    Record(Keyword::XOverall);
}

void cmPlate::yOverall(Single value) {
    yOverall_ = value;
    Record(Keyword::YOverall);
}

void cmPlate::Height(Single value) {
    height_ = value;
    Record(Keyword::Height);
}

void cmPlate::ShelfDepth(Single value) {
    shelfDepth_ = value;
    Record(Keyword::ShelfDepth);
}

void cmPlate::ColumnLabel(const String& value) {
    columnLabel_ = value;
    columnDirection_ = DirectionOf(value);
    Record(Keyword::ColLabel, columnDirection_);
}

void cmPlate::RowLabel(const String& value) {
    rowLabel_ = value;
    rowDirection_ = DirectionOf(value);
    Record(Keyword::RowLabel, rowDirection_);
}

Integer cmPlate::DirectionOf(std::string_view label) {
    return label == "1" || label == "a" || label == "A" ? 1 : -1;
}

String cmPlate::ValueText(Keyword keyword) const {
    switch (keyword) {
    case Keyword::Rows:
        return std::to_string(rows_);
    case Keyword::Cols:
        return std::to_string(cols_);
    case Keyword::RowLabel:
        return rowLabel_;
    case Keyword::ColLabel:
        return columnLabel_;
    case Keyword::XPitch:
        return ThreePlaces(xPitch_);
    case Keyword::YPitch:
        return ThreePlaces(yPitch_);
    case Keyword::XOverall:
        return TwoPlaces(xOverall_);
    case Keyword::YOverall:
        return TwoPlaces(yOverall_);
    case Keyword::Height:
        return TwoPlaces(height_);
    case Keyword::ShelfDepth:
        return ThreePlaces(shelfDepth_);
    default:
        return {};
    }
}

void cmPlate::Record(Keyword keyword, Integer position) {
    SetProperty(TraitsOf(keyword).name, ValueText(keyword), position);
}

void cmPlate::SetCurrent(Keyword keyword, Single value) {
    ((*Current()).*TraitsOf(keyword).setNumber)(value);
    RecordCurrent(keyword);
}

void cmPlate::RecordCurrent(Keyword keyword) {
    SetProperty(subWell_ + "." + String(TraitsOf(keyword).name),
                SubWellValueText(*Current(), keyword));
}

void cmPlate::WellDiameter(Single value) {
    Current()->WellDiameter(value);
    RecordCurrent(Keyword::WellSizeX);
    RecordCurrent(Keyword::WellSizeY);
}

void cmPlate::Style(Long value) {
    Current()->Style(value);
    RecordCurrent(Keyword::Style);
}

void cmPlate::Volume(Single value) { SetCurrent(Keyword::Volume, value); }

void cmPlate::WellSizeX(Single value) { SetCurrent(Keyword::WellSizeX, value); }

void cmPlate::WellSizeY(Single value) { SetCurrent(Keyword::WellSizeY, value); }

void cmPlate::Depth(Single value) { SetCurrent(Keyword::Depth, value); }

void cmPlate::xOffset(Single value) { SetCurrent(Keyword::XOffset, value); }

void cmPlate::yOffset(Single value) { SetCurrent(Keyword::YOffset, value); }

void cmPlate::RimWidth(Single value) { SetCurrent(Keyword::RimWidth, value); }

void cmPlate::RimHeight(Single value) { SetCurrent(Keyword::RimHeight, value); }

void cmPlate::RimCenterX(Single value) { SetCurrent(Keyword::RimCenterX, value); }

void cmPlate::RimCenterY(Single value) { SetCurrent(Keyword::RimCenterY, value); }

Single cmPlate::RimHeight() {
    RimWidth(Current()->RimHeight());
    return 0;
}

Single cmPlate::RimCenterX() {
    RimWidth(Current()->RimCenterX());
    return 0;
}

Single cmPlate::RimCenterY() {
    RimWidth(Current()->RimCenterY());
    return 0;
}

void cmPlate::CompoundWell(const std::shared_ptr<zorvane::CompoundWell>& value) {
    layout_ = value ? value : std::make_shared<zorvane::CompoundWell>();
}

void cmPlate::SetProperty(std::string_view name, std::string_view value, Integer position) {
    if (TStringPair* const pair = Properties.Find(name)) {
        pair->Value(value);
    } else {
        Properties.Add(std::make_shared<TStringPair>(String(name), String(value)), position);
    }
}

String cmPlate::GetProperty(std::string_view name) const {
    const auto pair = Properties.Pair(name);
    if (!pair) Raise(ErrorNumber::ObjectNotSet);
    return pair->Value();
}

String cmPlate::TagListText() const {
    String text;
    for (const auto& tag : Tags) {
        if (!text.empty()) text += ' ';
        text += tag->Value();
    }
    return String(Trim(text));
}

void cmPlate::CopyFrom(const cmPlate& source) {
    SetFromText(source.Text());
    UserData = source.UserData;
}

Integer cmPlate::RowColToIndex(Integer row, Integer col, Boolean columnMajor) const {
    return columnMajor ? Checked(col) * rows_ + row : Checked(row) * cols_ + col;
}

Integer cmPlate::IndexToRow(Integer index, Boolean columnMajor) const {
    return columnMajor ? Checked(index) % rows_ : Checked(index) / cols_;
}

Integer cmPlate::IndexToCol(Integer index, Boolean columnMajor) const {
    return columnMajor ? Checked(index) / rows_ : Checked(index) % cols_;
}

Integer cmPlate::TransposeIndex(Integer index, Boolean toColumnMajor) const {
    const bool fromColumnMajor = !toColumnMajor;
    return RowColToIndex(IndexToRow(index, fromColumnMajor), IndexToCol(index, fromColumnMajor),
                         toColumnMajor);
}

String cmPlate::RowLegend(Integer row) const { return Legend(rowLabel_, rowDirection_, row); }

String cmPlate::ColumnLegend(Integer col) const {
    return Legend(columnLabel_, columnDirection_, col);
}

String cmPlate::WellLegend(Integer row, Integer col) const {
    const String rowLegend = RowLegend(row);
    return rowLegend + ColumnLegend(col);
}

} // namespace zorvane
