#include "control/Plate.h"
#include "control/WellElements.h"
#include "runtime/Checked.h"
#include "runtime/NumberText.h"

#include <string>

namespace zorvane {

String Plate::Text(Integer WellNo) const { return IsShown(WellNo) ? Wells[WellNo].Text : String(); }

void Plate::Text(Integer WellNo, const String& value) {
    site_.Operate([&] {
        if (IsShown(WellNo)) {
            Wells[WellNo].Text = value;
            site_.WellDataChanged(WellNo, WellNo);
        }
    });
}

Integer Plate::ErrorCode(Integer WellNo) const {
    return IsShown(WellNo) ? Wells[WellNo].ErrorCode : Integer{0};
}

void Plate::ErrorCode(Integer WellNo, Integer value) {
    site_.Operate([&] {
        if (IsShown(WellNo)) {
            Wells[WellNo].ErrorCode = value;
            site_.WellDataChanged(WellNo, WellNo);
        }
    });
}

Single Plate::GetVolume(Integer WellNo) const {
    return IsShown(WellNo) ? Wells[WellNo].Volume : Single{0};
}

void Plate::SetVolume(Integer WellNo, Single V) {
    site_.Operate([&] {
        if (IsShown(WellNo)) {
            Wells[WellNo].Volume = V;
            site_.WellDataChanged(WellNo, WellNo);
        }
    });
}

String Plate::WellAnnotation(Integer WellNo) const {
    return IsShown(WellNo) ? TextOf(surface_, WellNo).caption : String();
}

void Plate::WellAnnotation(Integer WellNo, const String& value) {
    site_.Operate([&] {
        if (IsShown(WellNo)) SetAnnotation(Parts(), WellNo, value);
    });
}

Boolean Plate::IsDefined(Integer WellNo) const { return IsShown(WellNo) && Wells[WellNo].Defined; }

void Plate::IsDefined(Integer WellNo, Boolean value) {
    site_.Operate([&] {
        if (!IsShown(WellNo)) return;
        WellValues& well = Wells[WellNo];
        well.Defined = value;
        if (value) {
            SetBottomFill(Parts(), WellNo, well.ErrorCode == 0 ? DefinedWellColor : ErrorWellColor);
        } else {
            SetBottomFill(Parts(), WellNo, DefaultWellColor());
            well.ErrorCode = 0;
        }
    });
}

Long Plate::WellFill(Integer WellNo) const {
    return IsShown(WellNo) ? BottomOf(surface_, WellNo).fill : Long{0};
}

void Plate::WellFill(Integer WellNo, Long color) {
    site_.Operate([&] {
        if (IsShown(WellNo)) SetBottomFill(Parts(), WellNo, color);
    });
}

Long Plate::RimFill(Integer WellNo) const {
    return IsShown(WellNo) ? RimOf(surface_, WellNo).fill : Long{0};
}

void Plate::RimFill(Integer WellNo, Long color) {
    site_.Operate([&] {
        if (IsShown(WellNo)) SetRimFill(Parts(), WellNo, color);
    });
}

Boolean Plate::IsSelected(Integer WellNo) const {
    return WellNo >= 0 && IsShown(WellNo) && Wells[WellNo].Selected;
}

Single Plate::CurrentVolume() const { return GetVolume(CurrentWell()); }

void Plate::CurrentVolume(Single value) {
    site_.Operate([&] { SetVolume(CurrentWell(), value); });
}

Boolean Plate::SolutionDefined() const { return Wells[CurrentWell()].Defined; }

void Plate::SolutionDefined(Boolean value) {
    site_.Operate([&] {
        Wells[CurrentWell()].Defined = value;
        site_.WellDataChanged(CurrentWell(), CurrentWell());
    });
}

String Plate::WellColor() const { return std::to_string(BottomOf(surface_, CurrentWell()).fill); }

void Plate::WellColor(const String& value) {
    site_.Operate([&] { SetBottomFill(Parts(), CurrentWell(), ParseLong(value)); });
}

String Plate::RimColor() const { return std::to_string(RimOf(surface_, CurrentWell()).fill); }

void Plate::RimColor(const String& value) {
    site_.Operate([&] { SetRimFill(Parts(), CurrentWell(), ParseLong(value)); });
}

void Plate::ClearWell() {
    site_.Operate([&] {
        WellValues& well = Wells[CurrentWell()];
        well.Defined = false;
        well.Volume = 0;
        WellAnnotation(CurrentWell(), "");
        SetBottomFill(Parts(), CurrentWell(), DefaultWellColor());
    });
}

void Plate::ClearSubWells(const String& SubWellName) {
    site_.Operate([&] {
        PlateState::Col = 0;
        Row(0);
        SubWell(SubWellName);
        const Checked count = Checked(Definition().Rows()) * Definition().Cols();
        const Integer last = Checked(CurrentWell()) + count - 1;
        for (Integer i = CurrentWell(); i <= last; ++i) {
            Wells[i].Defined = false;
            Wells[i].Volume = 0;
            SetBottomFill(Parts(), i, DefaultWellColor());
            WellAnnotation(i, "");
        }
    });
}

} // namespace zorvane
