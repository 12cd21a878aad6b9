#include "control/Plate.h"

#include "control/Layout.h"
#include "platform/Process.h"
#include "runtime/Checked.h"
#include "support/RegistryFunctions.h"

namespace zorvane {

Plate::Plate(HostSite& site) : site_(site, PlateState::CurrentWell), focus_(site) {
    DefaultFileName = DefaultLibrary();
    FileName = DefaultFileName;
}

Plate::~Plate() = default;

// No separator is put in between: the directory in the registry ends with one.
String Plate::DefaultLibrary() {
    Long type = 0;
    return GetSettingEx(kLocalMachine, "Software\\Brasquel\\Directories", "GlobalDataDir", "",
                        type) +
           "Plates(Tarvo).Dat";
}

Boolean Plate::SetPlate(const String& PName, const String& FName) {
    PlateDef = std::make_unique<cmPlate>();
    if (!FName.empty()) FileName = FName;
    // A failure shows a message.
    if (!site_.CallOut([&] { return PlateDef->SetPlate(FileName, PName); })) return false;
    site_.Operate([&] { ShowLoadedPlate(); });
    return true;
}

void Plate::PlateName(const String& value) { SetPlate(value); }

String Plate::PlateClassText() const { return Definition().Text(); }

void Plate::PlateClassText(const String& value) {
    auto definition = std::make_unique<cmPlate>();
    definition->SetFromText(value);
    PlateDef = std::move(definition);
    site_.Operate([&] {
        surface_.cmdData.caption.clear();
        site_.DataButtonChanged();
        ShowLoadedPlate();
    });
}

void Plate::ShowLoadedPlate() {
    Dirty = false;
    PlateState::PlateName = PlateDef->PlateName();
    PlateLoaded = true;
    PlateState::WellIndex = 0;
    PlateState::CurrentWell = 0;
    PlateState::Row = 0;
    PlateState::Col = 0;
    SubWellCount = Checked(PlateDef->CompoundWell()->Count());
    surface_.SelectBox.visible = false;
    LayoutPlate(Parts(), true);
}

String Plate::TagList() const { return Definition().TagListText(); }

void Plate::SetProperty(const String& Name, const String& Value) {
    Definition().SetProperty(Name, Value);
}

String Plate::GetProperty(const String& Name) const { return Definition().GetProperty(Name); }

void Plate::DrawingScale(Single value) {
    PlateState::DrawingScale = value;
    if (PlateLoaded) site_.Operate([&] { LayoutPlate(Parts(), false); });
}

void Plate::Paint() { focus_.Refresh(); }

} // namespace zorvane
