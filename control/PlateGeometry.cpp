#include "control/Layout.h"
#include "control/Plate.h"
#include "control/WellElements.h"
#include "model/Coordinate.h"
#include "runtime/Checked.h"
#include "runtime/NumberText.h"
#include "runtime/Rounding.h"

namespace zorvane {

void Plate::WellEnvelope(Single& Xmin, Single& YMin, Single& Zmin, Single& Xmax, Single& Ymax,
                         Single& Zmax, Integer Row, Integer Col,
                         const String& /*SubPlateName*/) const {
    Coordinate low;
    Coordinate high;
    Definition().WellEnvelope(Row, Col, low, high);
    Xmin = low.X();
    YMin = low.Y();
    Zmin = low.Z();
    Xmax = high.X();
    Ymax = high.Y();
    Zmax = high.Z();
}

void Plate::WellCentroid(Single& X, Single& Y, Single& Z, Integer Row, Integer Col,
                         const String& /*SubPlateName*/) const {
    const Coordinate centre = Definition().WellCentroid(Row, Col);
    X = centre.X();
    Y = centre.Y();
    Z = centre.Z();
}

std::shared_ptr<WellDetails> Plate::CurrentSubWell() const {
    return WellIndex() > 0 ? Definition().CompoundWell()->Item(WellIndex()) : nullptr;
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
    site_.Operate([&] {
        if (WellIndex() < 1) return;
        WriteSubWell(&WellDetails::InitialVolume, value);
        const Checked perSubWell = Checked(Cols) * Rows;
        const Integer first = (Checked(WellIndex()) - 1) * perSubWell;
        const Integer last = Checked(WellIndex()) * perSubWell - 1;
        const String tag = SingleText(value);
        for (Long i = first; i <= last; ++i)
            TagOf(surface_, static_cast<Integer>(i)) = tag;
        LayoutPlate(Parts(), true);
    });
}

Single Plate::CurrentWellX() const { return ToSingle(Double{XPitch} * Col() + xOffset()); }

Single Plate::CurrentWellY() const { return ToSingle(Double{YPitch} * Row() + yOffset()); }

Single Plate::CurrentWellZ() const {
    return WellIndex() > 0 ? ToSingle(Double{PHeight} - Depth()) : 0;
}

Single Plate::WellX(Integer DesiredColumn, Integer /*DesiredRow*/,
                    const String& DesiredSubWell) const {
    const auto subWell = Definition().CompoundWell()->Item(DesiredSubWell);
    return ToSingle(Double{XPitch} * DesiredColumn + XLeft + subWell->xOffset());
}

Single Plate::WellY(Integer /*DesiredColumn*/, Integer DesiredRow,
                    const String& DesiredSubWell) const {
    const auto subWell = Definition().CompoundWell()->Item(DesiredSubWell);
    return ToSingle(Double{YPitch} * DesiredRow + YTop + subWell->yOffset());
}

Single Plate::WellZ(Integer /*DesiredColumn*/, Integer /*DesiredRow*/,
                    const String& DesiredSubWell) const {
    const auto subWell = Definition().CompoundWell()->Item(DesiredSubWell);
    return ToSingle(Double{PHeight} - subWell->Depth());
}

} // namespace zorvane
