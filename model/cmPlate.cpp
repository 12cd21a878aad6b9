#include "model/cmPlate.h"

#include "runtime/NumberText.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"
#include "support/TStringPair.h"

#include <string>

namespace zorvane {

namespace {

String TwoPlaces(Single value) { return FormatPicture(value, "0.00"); }
String ThreePlaces(Single value) { return FormatPicture(value, "0.000"); }

} // namespace

cmPlate::cmPlate() { Properties.ErrorOnFail = false; }

void cmPlate::Rows(Integer value) {
    rows_ = value;
    SetProperty("ROWS", std::to_string(value));
}

void cmPlate::Cols(Integer value) {
    cols_ = value;
    SetProperty("COLS", std::to_string(value));
}

void cmPlate::XPitch(Single value) {
    xPitch_ = value;
    SetProperty("XPITCH", ThreePlaces(value));
}

void cmPlate::YPitch(Single value) {
    yPitch_ = value;
    SetProperty("YPITCH", ThreePlaces(value));
}

void cmPlate::xOverall(Single value) {
    xOverall_ = value;
    SetProperty("XOVERALL", TwoPlaces(value));
}

void cmPlate::yOverall(Single value) {
    yOverall_ = value;
    SetProperty("YOVERALL", TwoPlaces(value));
}

void cmPlate::Height(Single value) {
    height_ = value;
    SetProperty("HEIGHT", TwoPlaces(value));
}

void cmPlate::ShelfDepth(Single value) {
    shelfDepth_ = value;
    SetProperty("SHELFDEPTH", ThreePlaces(value));
}

void cmPlate::ColumnLabel(const String& value) {
    columnLabel_ = value;
    columnDirection_ = DirectionOf(value);
    SetProperty("COLLABEL", value, columnDirection_);
}

void cmPlate::RowLabel(const String& value) {
    rowLabel_ = value;
    rowDirection_ = DirectionOf(value);
    SetProperty("ROWLABEL", value, rowDirection_);
}

Integer cmPlate::DirectionOf(std::string_view label) {
    return label == "1" || label == "a" || label == "A" ? 1 : -1;
}

void cmPlate::Volume(Single value) {
    Current()->MaxVolume(value);
    RecordCurrent(".VOLUME", TwoPlaces(value));
}

void cmPlate::WellDiameter(Single value) {
    Current()->WellDiameter(value);
    RecordCurrent(".WELLSIZEX", TwoPlaces(value));
    RecordCurrent(".WELLSIZEY", TwoPlaces(value));
}

void cmPlate::WellSizeX(Single value) {
    Current()->WellSizeX(value);
    RecordCurrent(".WELLSIZEX", TwoPlaces(value));
}

void cmPlate::WellSizeY(Single value) {
    Current()->WellSizeY(value);
    RecordCurrent(".WELLSIZEY", TwoPlaces(value));
}

void cmPlate::RimWidth(Single value) {
    Current()->RimWidth(value);
    RecordCurrent(".RIMWIDTH", TwoPlaces(value));
}

void cmPlate::RimHeight(Single value) {
    Current()->RimHeight(value);
    RecordCurrent(".RIMHEIGHT", TwoPlaces(value));
}

void cmPlate::RimCenterX(Single value) {
    Current()->RimCenterX(value);
    RecordCurrent(".RIMCENTERX", TwoPlaces(value));
}

void cmPlate::RimCenterY(Single value) {
    Current()->RimCenterY(value);
    RecordCurrent(".RIMCENTERY", TwoPlaces(value));
}

void cmPlate::Depth(Single value) {
    Current()->Depth(value);
    RecordCurrent(".DEPTH", TwoPlaces(value));
}

void cmPlate::xOffset(Single value) {
    Current()->xOffset(value);
    RecordCurrent(".XOFFSET", TwoPlaces(value));
}

void cmPlate::yOffset(Single value) {
    Current()->yOffset(value);
    RecordCurrent(".YOFFSET", TwoPlaces(value));
}

void cmPlate::Style(Long value) {
    Current()->Style(value);
    RecordCurrent(".STYLE", StyleText(value));
}

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

void cmPlate::RecordCurrent(std::string_view name, std::string_view value) {
    SetProperty(String(subWell_).append(name), value);
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

} // namespace zorvane
