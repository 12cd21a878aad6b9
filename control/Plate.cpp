#include "control/Plate.h"

#include "control/PlateParts.h"
#include "control/SavedSettings.h"
#include "platform/Registry.h"
#include "runtime/Checked.h"
#include "support/RegistryFunctions.h"

/// Plates, settings, the panel and input; PlateWells.cpp has what belongs to wells.
namespace zorvane {

namespace {

// No separator is put in between: the directory in the registry ends with one.
String DefaultLibrary() {
    Long type = 0;
    return GetSettingEx(kLocalMachine, "Software\\Brasquel\\Directories", "GlobalDataDir", "",
                        type) +
           "Plates(Tarvo).Dat";
}

} // namespace

Plate::Plate(HostSite& site) : parts_(std::make_unique<Parts>(*this, site)) {
    parts_->defaultFileName = DefaultLibrary();
    FileName = parts_->defaultFileName;
}

Plate::~Plate() = default;

void Plate::AddObserver(PlateObserver& observer) { parts_->notifier.AddObserver(observer); }

void Plate::RemoveObserver(PlateObserver& observer) noexcept {
    parts_->notifier.RemoveObserver(observer);
}

const cmPlate& Plate::LoadedDefinition() const { return *parts_->definition; }

const Surface& Plate::Elements() const { return parts_->surface; }

void Plate::Paint() { parts_->focus.Refresh(); }

// Saved settings.

void Plate::InitialProperties() {
    Operate([this](Parts& parts) {
        FixedSize = saved::kFixedSize.fallback;
        MultipleSelect = saved::kMultipleSelect.fallback;
        DrawingScale(saved::kDrawingScale.fallback);
        FileName = parts.notifier.CallOut(DefaultLibrary); // may show a message
        DefaultRimColor(saved::kRimColor.fallback);
        DefaultSelectColor = saved::kSelectColor.fallback;
        DefaultWellColor(saved::kWellColor.fallback);
        DeselectedColor = saved::kDeselectedColor.fallback;
        SelectedColor = saved::kSelectedColor.fallback;
        HorizontalCentred = saved::kHorizontalCentred.fallback;
        VerticalCentred = saved::kVerticalCentred.fallback;
        PlateName(saved::kPlateName.fallback);
    });
}

// The plate is loaded with every setting but MultipleSelect in place.
void Plate::RestoreProperties(const PropertyStore& store) {
    Operate([&](Parts& parts) {
        FixedSize = saved::Read(store, saved::kFixedSize);
        parts.layout.Scale(saved::Read(store, saved::kDrawingScale));
        FileName = saved::Read(store, saved::FileName(parts.defaultFileName));
        DefaultRimColor(saved::Read(store, saved::kRimColor));
        DefaultSelectColor = saved::Read(store, saved::kSelectColor);
        DefaultWellColor(saved::Read(store, saved::kWellColor));
        DeselectedColor = saved::Read(store, saved::kDeselectedColor);
        SelectedColor = saved::Read(store, saved::kSelectedColor);
        HorizontalCentred = saved::Read(store, saved::kHorizontalCentred);
        VerticalCentred = saved::Read(store, saved::kVerticalCentred);
        PlateName(saved::Read(store, saved::kPlateName));
        MultipleSelect = saved::Read(store, saved::kMultipleSelect);
    });
}

void Plate::SaveProperties(PropertyStore& store) const {
    saved::Write(store, saved::FileName(parts_->defaultFileName), FileName);
    saved::Write(store, saved::kPlateName, PlateName());
    saved::Write(store, saved::kFixedSize, FixedSize);
    saved::Write(store, saved::kDrawingScale, DrawingScale());
    saved::Write(store, saved::kRimColor, DefaultRimColor());
    saved::Write(store, saved::kSelectColor, DefaultSelectColor);
    saved::Write(store, saved::kWellColor, DefaultWellColor());
    saved::Write(store, saved::kDeselectedColor, DeselectedColor);
    saved::Write(store, saved::kSelectedColor, SelectedColor);
    saved::Write(store, saved::kHorizontalCentred, HorizontalCentred);
    saved::Write(store, saved::kVerticalCentred, VerticalCentred);
    saved::Write(store, saved::kMultipleSelect, MultipleSelect);
}

// The plate definition.

Boolean Plate::SetPlate(const String& PName, const String& FName) {
    Boolean found = false;
    Operate([&](Parts& parts) {
        parts.definition.Replace(std::make_unique<cmPlate>());
        if (!FName.empty()) FileName = FName;
        // A failure shows a message.
        found = parts.notifier.CallOut([&] { return parts.definition->SetPlate(FileName, PName); });
        if (found) ShowLoadedPlate(parts);
    });
    return found;
}

String Plate::PlateName() const { return parts_->plateName; }

void Plate::PlateName(const String& value) { SetPlate(value); }

String Plate::PlateClassText() const { return parts_->definition->Text(); }

void Plate::PlateClassText(const String& value) {
    Operate([&](Parts& parts) {
        auto plate = std::make_unique<cmPlate>();
        plate->SetFromText(value);
        parts.definition.Replace(std::move(plate));
        parts.surface.cmdData.caption.clear();
        parts.notifier.DataButtonChanged();
        ShowLoadedPlate(parts);
    });
}

void Plate::ShowLoadedPlate(Parts& parts) {
    Dirty = false;
    parts.plateName = parts.definition->PlateName();
    parts.loaded = true;
    parts.cursor.Reset();
    SubWellCount = Checked(parts.definition->CompoundWell()->Count());
    parts.surface.SelectBox.visible = false;
    LayOut(parts, true);
}

// The plate area stays hidden until the panel shows its first page.
void Plate::LayOut(Parts& parts, Boolean fullReset) {
    parts.notifier.RepaintAll();
    parts.notifier.PlateChanged();
    parts.layout.Begin();
    parts.panel.ListPages();
    parts.layout.PlaceWells(fullReset);
    parts.definition.SubWellsEdited(false);
    parts.panel.Reset();
    parts.layout.End();
    parts.panel.Open(false);
}

String Plate::TagList() const { return parts_->definition->TagListText(); }

void Plate::SetProperty(const String& Name, const String& Value) {
    Operate([&](Parts& parts) {
        parts.definition->SetProperty(Name, Value);
        parts.notifier.PlateChanged();
    });
}

String Plate::GetProperty(const String& Name) const {
    return parts_->definition->GetProperty(Name);
}

// Appearance.

Single Plate::DrawingScale() const { return parts_->layout.Scale(); }

void Plate::DrawingScale(Single value) {
    Operate([&](Parts& parts) {
        parts.layout.Scale(value);
        if (parts.loaded) LayOut(parts, false);
    });
}

Long Plate::DefaultRimColor() const { return parts_->elements.defaultRim; }

void Plate::DefaultRimColor(Long value) {
    Operate([&](Parts& parts) {
        parts.elements.defaultRim = value;
        parts.surface.panel.StyleRim.fill = value;
        parts.notifier.PanelChanged();
    });
}

Long Plate::DefaultWellColor() const { return parts_->elements.defaultBottom; }

void Plate::DefaultWellColor(Long value) {
    Operate([&](Parts& parts) {
        parts.elements.defaultBottom = value;
        parts.surface.panel.StyleWell.fill = value;
        parts.notifier.PanelChanged();
    });
}

Boolean Plate::Selected() const { return parts_->selected; }

void Plate::Selected(Boolean value) {
    Operate([&](Parts& parts) {
        Surface& surface = parts.surface;
        parts.selected = value;
        surface.cmdData.bold = value;
        surface.fraPlate.text = value ? kButtonText : kGrayText;
        surface.fraPlate.back = value ? SelectedColor : DeselectedColor;
        for (std::size_t i = 0; i < static_cast<std::size_t>(parts.layout.LegendCount()); ++i)
            surface.lblWell[i].color = surface.fraPlate.text;
        parts.notifier.RepaintAll();
        parts.notifier.DataButtonChanged();
        if (value && surface.cmdData.visible && surface.cmdData.enabled)
            parts.notifier.FocusDataButton();
    });
}

Boolean Plate::MouseEnabled() const { return parts_->surface.cmdData.enabled; }

void Plate::MouseEnabled(Boolean value) {
    Operate([&](Parts& parts) {
        parts.surface.cmdData.enabled = value;
        parts.notifier.DataButtonChanged();
    });
}

void Plate::SelectBoxEnabled(Boolean value) {
    Operate([&](Parts& parts) { parts.box.Enabled(value); });
}

// The details panel.

Boolean Plate::DataVisible() const { return parts_->surface.fraData.visible; }

void Plate::DataVisible(Boolean value) {
    Operate([&](Parts& parts) { parts.panel.Open(value); });
}

void Plate::DataButtonPressed() { DataVisible(!DataVisible()); }

Boolean Plate::EditEnable() const { return parts_->panel.EditEnable(); }

void Plate::EditEnable(Boolean value) {
    Operate([&](Parts& parts) { parts.panel.EditEnable(value); });
}

Boolean Plate::EditsPending() const { return parts_->surface.panel.cmdApply.enabled; }

void Plate::SetDataDisplay(Integer Index) {
    Operate([&](Parts& parts) { parts.panel.Fill(Index); });
}

void Plate::GetDataDisplay(Integer Index) {
    Operate([&](Parts& parts) {
        parts.notifier.PlateChanged();
        parts.panel.Read(Index);
    });
}

void Plate::PageChosen(Integer position) {
    Operate([&](Parts& parts) { parts.panel.ChoosePage(position); });
}

void Plate::CommentTyped(const String& text) {
    Operate([&](Parts& parts) { parts.panel.TypeComment(text); });
}

void Plate::RowTyped(Integer row, const String& text) {
    Operate([&](Parts& parts) { parts.panel.TypeRow(row, text); });
}

void Plate::StyleChosen(Integer position) {
    Operate([&](Parts& parts) { parts.panel.ChooseStyle(position); });
}

void Plate::ApplyPressed() {
    Operate([this](Parts& parts) {
        parts.panel.Read(parts.surface.panel.comboSelect.position);
        LayOut(parts, false);
        parts.notifier.Raise([](PlateObserver& host) { host.ApplyChanges(); });
        parts.definition.SubWellsEdited(false);
        parts.panel.Open(true);
    });
}

void Plate::MenuPressed() {
    Operate([this](Parts& parts) {
        const Integer chosen = parts.notifier.Choose(parts.surface.panel.mnuPopup);
        if (chosen >= mnuAddNewSubWell && chosen <= mnuShiftHeight)
            MenuChosen(static_cast<SubWellCommand>(chosen));
    });
}

void Plate::MenuChosen(SubWellCommand command) {
    Operate([&](Parts& parts) {
        parts.notifier.PanelChanged();
        const SubWellCommands::Rest rest = parts.commands.Run(command);
        if (rest == SubWellCommands::Rest::Nothing) return;
        parts.notifier.PlateChanged();
        if (rest == SubWellCommands::Rest::LayOut) LayOut(parts, true);
        parts.surface.panel.cmdApply.enabled = true;
        parts.definition.SubWellsEdited(true);
        if (rest != SubWellCommands::Rest::Mark) parts.panel.Open(true);
    });
}

// Input.

void Plate::ButtonDown(Integer button, Integer shift, Single x, Single y) {
    Operate([&](Parts& parts) { parts.gestures.Press(button, shift, x, y); });
}

void Plate::PointerMove(Integer buttons, Integer /*shift*/, Single x, Single y) {
    Operate([&](Parts& parts) { parts.gestures.Move(buttons, x, y); });
}

void Plate::ButtonUp(Integer button, Integer shift, Single x, Single y) {
    Operate([&](Parts& parts) { parts.gestures.Release(button, shift, x, y); });
}

void Plate::AreaClicked() {
    Operate([this](Parts& parts) {
        parts.notifier.TakeFocus();
        PanelClicked();
    });
}

void Plate::AreaDoubleClicked() { PanelDoubleClicked(); }

void Plate::PanelClicked() {
    Operate([](Parts& parts) {
        if (parts.surface.cmdData.enabled)
            parts.notifier.Raise([](PlateObserver& host) { host.Click(); });
    });
}

void Plate::PanelDoubleClicked() {
    Operate([](Parts& parts) {
        if (parts.surface.cmdData.enabled)
            parts.notifier.Raise([](PlateObserver& host) { host.DoubleClick(); });
    });
}

void Plate::BackgroundPressed() {
    if (MouseEnabled()) parts_->notifier.TakeFocus();
}

void Plate::KeyDown(Integer keyCode, Integer shift) {
    Operate([&](Parts& parts) { parts.gestures.KeyDown(keyCode, shift); });
}

void Plate::KeyUp(Integer /*keyCode*/, Integer shift) {
    Operate([&](Parts& parts) { parts.gestures.KeyUp(shift); });
}

// The characters "&", "(", "%" and "'" share their codes with the arrow keys and move likewise,
// during a drag as well; hosts rely on it.
void Plate::CharacterTyped(Integer code) {
    Operate([&](Parts& parts) { parts.gestures.MoveByArrow(code); });
}

} // namespace zorvane
