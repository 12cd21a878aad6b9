#include "model/LabelText.h"
#include "model/cmPlate.h"
#include "runtime/Checked.h"
#include "runtime/NumberText.h"
#include "runtime/Rounding.h"

#include <algorithm>

/// Moving and turning the layout, and where a well lies.
namespace zorvane {

namespace {

struct Envelope {
    Single left;
    Single top;
    Single right;
    Single bottom;
};

Envelope EnvelopeOf(const WellDetails& well, Double rimY) {
    const Double x = Double{well.xOffset()} + well.RimCenterX();
    const Double y = Double{well.yOffset()} + well.RimCenterY();
    const Double halfX = Double{well.WellSizeX()} / 2 + well.RimWidth();
    const Double halfY = Double{well.WellSizeY()} / 2 + rimY;
    return {ToSingle(x - halfX), ToSingle(y - halfY), ToSingle(x + halfX), ToSingle(y + halfY)};
}

void Extend(Envelope& envelope, const Envelope& by) {
    envelope.left = std::min(envelope.left, by.left);
    envelope.top = std::min(envelope.top, by.top);
    envelope.right = std::max(envelope.right, by.right);
    envelope.bottom = std::max(envelope.bottom, by.bottom);
}

/// The first row label after a quarter turn: the old columns become rows counted from the far side.
String TurnedLabel(std::string_view columnLabel, Integer rows) {
    if (IsNumber(columnLabel))
        return GeneralText((Checked(rows) + 1).Value() - LeadingNumber(columnLabel));
    const CharacterAt first = LabelCharacter(columnLabel);
    return LabelText(Checked(rows) - Checked(first.code) + 'A' + 'A' - 1, first);
}

} // namespace

void cmPlate::ShiftWells(Single dX, Single dY, Single dZ) {
    for (const auto& well : *layout_) {
        SubWell(well->WellName());
        xOffset(ToSingle(Double{well->xOffset()} + dX));
        yOffset(ToSingle(Double{well->yOffset()} + dY));
        Depth(ToSingle(Double{well->Depth()} - dZ));
    }
}

void cmPlate::Rotate90() {
    const Integer oldCols = cols_;
    const Single oldXOverall = xOverall_;
    const Single oldXPitch = xPitch_;
    const String oldColumnLabel = columnLabel_;
    Cols(rows_);
    Rows(oldCols);
    xOverall(yOverall_);
    yOverall(oldXOverall);
    XPitch(yPitch_);
    YPitch(oldXPitch);
    ColumnLabel(String(rowLabel_));
    RowLabel(TurnedLabel(oldColumnLabel, rows_));
    for (const auto& well : *layout_)
        Rotate90(*well);
}

void cmPlate::Rotate90(const WellDetails& well) {
    // The setters change the sub-well while it is being read.
    WellDetails old;
    old.Copy(well);
    SubWell(old.WellName());
    const Double lastRow = (Checked(rows_) - 1).Value();
    xOffset(old.yOffset());
    yOffset(ToSingle(Double{yOverall_} - old.xOffset() - lastRow * yPitch_));
    RimHeight(old.RimWidth());
    RimWidth(old.RimHeight());
    RimCenterX(old.RimCenterY());
    RimCenterY(-old.RimCenterX());
}

void cmPlate::Rotate(Integer /*angle*/) {}

void cmPlate::WellEnvelope(Integer row, Integer col, Coordinate& minCorner,
                           Coordinate& maxCorner) const {
    // Only the first sub-well's rim counts along Y with its width: hosts know these envelopes.
    const auto first = layout_->Item(1);
    Envelope envelope = EnvelopeOf(*first, first->RimWidth());
    for (Long position = 2; position <= layout_->Count(); ++position) {
        const auto well = layout_->Item(position);
        Extend(envelope, EnvelopeOf(*well, well->RimHeight()));
    }
    const Double x = Double{xPitch_} * col;
    const Double y = Double{yPitch_} * row;
    minCorner.X(ToSingle(envelope.left + x));
    minCorner.Y(ToSingle(envelope.top + y));
    maxCorner.X(ToSingle(envelope.right + x));
    maxCorner.Y(ToSingle(envelope.bottom + y));
}

Coordinate cmPlate::WellCentroid(Integer row, Integer col) const {
    Coordinate minCorner;
    Coordinate maxCorner;
    WellEnvelope(row, col, minCorner, maxCorner);
    Coordinate centroid;
    centroid.X(ToSingle((Double{minCorner.X()} + maxCorner.X()) / 2));
    centroid.Y(ToSingle((Double{minCorner.Y()} + maxCorner.Y()) / 2));
    return centroid;
}

} // namespace zorvane
