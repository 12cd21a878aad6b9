#include "control/wells/WellCursor.h"

#include "runtime/Text.h"

namespace zorvane {

namespace {

constexpr const char* kDefaultSubWell = "Default";

} // namespace

void WellCursor::Renumber() { number_ = WellGrid{fields_.Rows, fields_.Cols}.NumberOf(place_); }

void WellCursor::Number(Integer wellNo) {
    number_ = wellNo;
    place_ = WellGrid{fields_.Rows, fields_.Cols}.PlaceOf(wellNo);
}

void WellCursor::Row(Integer row) {
    place_.row = row;
    Renumber();
}

void WellCursor::Col(Integer col) {
    place_.col = col;
    Renumber();
}

void WellCursor::SubWell(Integer position) {
    place_.subWell =
        position == 0 ? Checked(definition_->CompoundWell()->Count()) : Checked(position);
    Renumber();
}

void WellCursor::SubWellName(const String& name) {
    Integer position = PositionOf(name);
    if (position == 0)
        position = EqualNoCase(SubWellName(), kDefaultSubWell) ? Integer{1} : OnePastLast();
    SubWell(position);
}

void WellCursor::MoveTo(Integer row, Integer col) {
    place_.row = row;
    Col(col);
}

// Unlike the SubWell property, what counts is the name asked for, not the present sub-well.
void WellCursor::MoveTo(Integer row, Integer col, const String& subWell) {
    Integer position = PositionOf(subWell);
    if (position == 0)
        position = EqualNoCase(subWell, kDefaultSubWell) ? Integer{1} : OnePastLast();
    place_.col = col;
    place_.row = row;
    SubWell(position);
}

void WellCursor::Reset() {
    number_ = 0;
    place_ = {};
}

String WellCursor::SubWellName() const {
    if (place_.subWell == 0) return kDefaultSubWell;
    return definition_->CompoundWell()->Item(place_.subWell)->WellName();
}

/// The position of a sub-well by name, 1 without a name, or 0.
Integer WellCursor::PositionOf(const String& name) const {
    if (name.empty()) return 1;
    Integer position = 1;
    for (const auto& subWell : *definition_->CompoundWell()) {
        if (EqualNoCase(subWell->WellName(), name)) return position;
        position = Checked(position) + 1;
    }
    return 0;
}

Integer WellCursor::OnePastLast() const {
    return Checked(definition_->CompoundWell()->Count()) + 1;
}

} // namespace zorvane
