#include "control/Plate.h"

#include "control/PlateParts.h"
#include "model/Coordinate.h"
#include "runtime/Checked.h"
#include "runtime/NumberText.h"
#include "runtime/Rounding.h"

#include <string>

/// The members of Plate that belong to wells.
namespace zorvane {

// The current well.

Integer Plate::CurrentWell() const { return parts_->cursor.Number(); }

void Plate::CurrentWell(Integer value) {
    Operate([&](Parts& parts) { parts.cursor.Number(value); });
}

Integer Plate::Row() const { return parts_->cursor.Row(); }

void Plate::Row(Integer value) {
    Operate([&](Parts& parts) { parts.cursor.Row(value); });
}

Integer Plate::Col() const { return parts_->cursor.Col(); }

void Plate::Col(Integer value) {
    Operate([&](Parts& parts) { parts.cursor.Col(value); });
}

Integer Plate::WellIndex() const { return parts_->cursor.SubWell(); }

void Plate::WellIndex(Integer value) {
    Operate([&](Parts& parts) { parts.cursor.SubWell(value); });
}

String Plate::SubWell() const { return parts_->cursor.SubWellName(); }

void Plate::SubWell(const String& name) {
    Operate([&](Parts& parts) { parts.cursor.SubWellName(name); });
}

String Plate::Location() const {
    return SubWell() + ", " + std::to_string(Row()) + ", " + std::to_string(Col());
}

// Selection.

Integer Plate::NSelected() const { return parts_->selection.Count(); }

void Plate::SetWell(Integer R, Integer C, const String& SubWell, WellSelectAction SelectionAction) {
    Operate([&](Parts& parts) { parts.selection.SetWell(R, C, SubWell, SelectionAction); });
}

void Plate::SelectWell(Integer WellNo, Boolean Value) {
    Operate([&](Parts& parts) { parts.selection.Mark(WellNo, Value); });
}

void Plate::SelectAll(Boolean Value) {
    Operate([&](Parts& parts) { parts.selection.MarkAll(Value); });
}

void Plate::ClearSelection() {
    Operate([](Parts& parts) { parts.selection.Clear(); });
}

Boolean Plate::WellSelected() const { return parts_->selection.Has(CurrentWell()); }

void Plate::WellSelected(Boolean value) { SelectWell(CurrentWell(), value); }

Integer Plate::MouseToWell(Single X, Single Y) const { return parts_->hitTest.WellAt(X, Y); }

// Blocks of wells.

Integer Plate::ArrayX() const { return parts_->block.X(); }

Integer Plate::ArrayY() const { return parts_->block.Y(); }

Integer Plate::ArrayWidth() const { return parts_->block.Width(); }

Integer Plate::ArrayHeight() const { return parts_->block.Height(); }

// Stays empty: hosts read the sub-well from the current well.
String Plate::ArraySubwell() const { return {}; }

void Plate::SetArray(Integer X, Integer Y, Integer Width, Integer Height, const String& SW,
                     Long Direction, Long Color) {
    Operate([&](Parts& parts) {
        parts.block.Record(X, Y, Width, Height);
        parts.cursor.SubWellName(SW);
        parts.block.Direction(Direction);
        parts.block.Select(Color);
    });
}

void Plate::FillArray(Long Color, const String& AnnotationText, Integer StartWell,
                      Integer StopWell) {
    Operate([&](Parts& parts) { parts.block.Fill(Color, AnnotationText, StartWell, StopWell); });
}

// Data of any well.

Integer Plate::TotalWells() const { return parts_->wells.Total(); }

String Plate::Text(Integer WellNo) const { return parts_->data.Read(WellNo, &WellValues::Text); }

void Plate::Text(Integer WellNo, const String& value) {
    Operate([&](Parts& parts) { parts.data.Write(WellNo, &WellValues::Text, value); });
}

Integer Plate::ErrorCode(Integer WellNo) const {
    return parts_->data.Read(WellNo, &WellValues::ErrorCode);
}

void Plate::ErrorCode(Integer WellNo, Integer value) {
    Operate([&](Parts& parts) { parts.data.Write(WellNo, &WellValues::ErrorCode, value); });
}

Single Plate::GetVolume(Integer WellNo) const {
    return parts_->data.Read(WellNo, &WellValues::Volume);
}

void Plate::SetVolume(Integer WellNo, Single V) {
    Operate([&](Parts& parts) { parts.data.Write(WellNo, &WellValues::Volume, V); });
}

String Plate::WellAnnotation(Integer WellNo) const { return parts_->data.Annotation(WellNo); }

void Plate::WellAnnotation(Integer WellNo, const String& value) {
    Operate([&](Parts& parts) { parts.data.Annotation(WellNo, value); });
}

Boolean Plate::IsDefined(Integer WellNo) const {
    return parts_->data.Read(WellNo, &WellValues::Defined);
}

void Plate::IsDefined(Integer WellNo, Boolean value) {
    Operate([&](Parts& parts) { parts.data.Define(WellNo, value); });
}

Long Plate::WellFill(Integer WellNo) const { return parts_->data.Fill(WellNo); }

void Plate::WellFill(Integer WellNo, Long color) {
    Operate([&](Parts& parts) { parts.data.Fill(WellNo, color); });
}

Long Plate::RimFill(Integer WellNo) const { return parts_->data.RimFill(WellNo); }

void Plate::RimFill(Integer WellNo, Long color) {
    Operate([&](Parts& parts) { parts.data.RimFill(WellNo, color); });
}

Boolean Plate::IsSelected(Integer WellNo) const {
    return WellNo >= 0 && parts_->data.Read(WellNo, &WellValues::Selected);
}

// Data of the current well.

Single Plate::CurrentVolume() const { return GetVolume(CurrentWell()); }

void Plate::CurrentVolume(Single value) { SetVolume(CurrentWell(), value); }

Boolean Plate::SolutionDefined() const {
    return std::as_const(parts_->wells)[CurrentWell()].Defined;
}

void Plate::SolutionDefined(Boolean value) {
    Operate([&](Parts& parts) { parts.data.WriteAny(CurrentWell(), &WellValues::Defined, value); });
}

String Plate::WellColor() const {
    return std::to_string(parts_->elements.Bottom(CurrentWell()).fill);
}

void Plate::WellColor(const String& value) {
    Operate([&](Parts& parts) { parts.elements.FillBottom(CurrentWell(), ParseLong(value)); });
}

String Plate::RimColor() const { return std::to_string(parts_->elements.Rim(CurrentWell()).fill); }

void Plate::RimColor(const String& value) {
    Operate([&](Parts& parts) { parts.elements.FillRim(CurrentWell(), ParseLong(value)); });
}

void Plate::ClearWell() {
    Operate([this](Parts& parts) { parts.data.Clear(CurrentWell()); });
}

void Plate::ClearSubWells(const String& SubWellName) {
    Operate([&](Parts& parts) {
        WellCursor& cursor = parts.cursor;
        cursor.MoveTo(0, 0);
        cursor.SubWellName(SubWellName);
        const cmPlate& plate = *parts.definition;
        const Integer last = Checked(cursor.Number()) + Checked(plate.Rows()) * plate.Cols() - 1;
        for (Integer i = cursor.Number(); i <= last; ++i)
            parts.data.Clear(i);
    });
}

// Geometry of the current sub-well.

std::shared_ptr<WellDetails> Plate::CurrentSubWell() const {
    if (WellIndex() < 1) return nullptr;
    return parts_->definition->CompoundWell()->Item(WellIndex());
}

Single Plate::ReadSubWell(Single (WellDetails::*field)() const) const {
    const auto subWell = CurrentSubWell();
    return subWell ? (*subWell.*field)() : 0;
}

void Plate::WriteSubWell(void (WellDetails::*field)(Single), Single value) {
    if (const auto subWell = CurrentSubWell()) (*subWell.*field)(value);
}

Integer Plate::Style() const {
    const auto subWell = CurrentSubWell();
    return subWell ? Checked(subWell->Style()) : Checked(0);
}

void Plate::Style(Integer value) {
    if (const auto subWell = CurrentSubWell()) subWell->Style(value);
}

Single Plate::WellDiameter() const { return ToSingle((Double{WellSizeY()} + WellSizeX()) / 2); }

void Plate::WellDiameter(Single value) { WriteSubWell(&WellDetails::WellDiameter, value); }

Single Plate::MaxVolume() const { return ReadSubWell(&WellDetails::MaxVolume); }

void Plate::MaxVolume(Single value) { WriteSubWell(&WellDetails::MaxVolume, value); }

Single Plate::Depth() const { return ReadSubWell(&WellDetails::Depth); }

void Plate::Depth(Single value) { WriteSubWell(&WellDetails::Depth, value); }

Single Plate::WellSizeX() const { return ReadSubWell(&WellDetails::WellSizeX); }

void Plate::WellSizeX(Single value) { WriteSubWell(&WellDetails::WellSizeX, value); }

Single Plate::WellSizeY() const { return ReadSubWell(&WellDetails::WellSizeY); }

void Plate::WellSizeY(Single value) { WriteSubWell(&WellDetails::WellSizeY, value); }

Single Plate::RimWidth() const { return ReadSubWell(&WellDetails::RimWidth); }

void Plate::RimWidth(Single value) { WriteSubWell(&WellDetails::RimWidth, value); }

Single Plate::RimHeight() const { return ReadSubWell(&WellDetails::RimHeight); }

void Plate::RimHeight(Single value) { WriteSubWell(&WellDetails::RimHeight, value); }

Single Plate::xOffset() const { return ReadSubWell(&WellDetails::xOffset); }

void Plate::xOffset(Single value) { WriteSubWell(&WellDetails::xOffset, value); }

Single Plate::yOffset() const { return ReadSubWell(&WellDetails::yOffset); }

void Plate::yOffset(Single value) { WriteSubWell(&WellDetails::yOffset, value); }

Single Plate::InitialVolume() const { return ReadSubWell(&WellDetails::InitialVolume); }

void Plate::InitialVolume(Single value) {
    if (WellIndex() < 1) return;
    Operate([&](Parts& parts) {
        WriteSubWell(&WellDetails::InitialVolume, value);
        const Checked perSubWell = Checked(Cols) * Rows;
        const Integer first = (Checked(WellIndex()) - 1) * perSubWell;
        const Integer last = Checked(WellIndex()) * perSubWell - 1;
        const String tag = SingleText(value);
        for (Long i = first; i <= last; ++i)
            parts.elements.Tag(static_cast<Integer>(i), tag);
        LayOut(parts, true);
    });
}

// Plate coordinates.

void Plate::WellEnvelope(Single& Xmin, Single& YMin, Single& Zmin, Single& Xmax, Single& Ymax,
                         Single& Zmax, Integer Row, Integer Col,
                         const String& /*SubPlateName*/) const {
    Coordinate low;
    Coordinate high;
    parts_->definition->WellEnvelope(Row, Col, low, high);
    Xmin = low.X();
    YMin = low.Y();
    Zmin = low.Z();
    Xmax = high.X();
    Ymax = high.Y();
    Zmax = high.Z();
}

void Plate::WellCentroid(Single& X, Single& Y, Single& Z, Integer Row, Integer Col,
                         const String& /*SubPlateName*/) const {
    const Coordinate centre = parts_->definition->WellCentroid(Row, Col);
    X = centre.X();
    Y = centre.Y();
    Z = centre.Z();
}

Single Plate::CurrentWellX() const { return ToSingle(Double{XPitch} * Col() + xOffset()); }

Single Plate::CurrentWellY() const { return ToSingle(Double{YPitch} * Row() + yOffset()); }

Single Plate::CurrentWellZ() const {
    return WellIndex() > 0 ? ToSingle(Double{PHeight} - Depth()) : 0;
}

Single Plate::WellX(Integer DesiredColumn, Integer /*DesiredRow*/,
                    const String& DesiredSubWell) const {
    const auto subWell = parts_->definition->CompoundWell()->Item(DesiredSubWell);
    return ToSingle(Double{XPitch} * DesiredColumn + XLeft + subWell->xOffset());
}

Single Plate::WellY(Integer /*DesiredColumn*/, Integer DesiredRow,
                    const String& DesiredSubWell) const {
    const auto subWell = parts_->definition->CompoundWell()->Item(DesiredSubWell);
    return ToSingle(Double{YPitch} * DesiredRow + YTop + subWell->yOffset());
}

Single Plate::WellZ(Integer /*DesiredColumn*/, Integer /*DesiredRow*/,
                    const String& DesiredSubWell) const {
    const auto subWell = parts_->definition->CompoundWell()->Item(DesiredSubWell);
    return ToSingle(Double{PHeight} - subWell->Depth());
}

} // namespace zorvane
