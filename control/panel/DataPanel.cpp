#include "control/panel/DataPanel.h"

#include "control/panel/PanelPages.h"
#include "runtime/Rounding.h"
#include "runtime/RuntimeError.h"

namespace zorvane {

// The row text boxes take text all the same; without the Apply button it goes nowhere.
void DataPanel::EditEnable(Boolean on) {
    notifier_.PanelChanged();
    const Long back = on ? kWindowBackground : kButtonFace;
    for (TextBox& row : panel_.txtData)
        row.back = back;
    panel_.txtComment.back = back;
    editEnable_ = on;
    panel_.cmdApply.visible = panel_.cmdPopup.visible = on;
    panel_.cmbStyle.enabled = panel_.txtComment.enabled = on;

    const Rect& apply = panel_.cmdApply.box;
    panel_.ControlPic.height = on ? apply.Bottom() : apply.top - apply.height / 2;
    surface_.fraData.box.height = panel_.ControlPic.Bottom() + apply.height;
}

void DataPanel::Open(Boolean visible) {
    const Rect& plate = surface_.fraPlate.box;
    const Rect& data = surface_.fraData.box;
    const Single button = surface_.cmdData.box.height;
    Single width = notifier_.Width();
    Single height = notifier_.Height();

    if (!surface_.fraData.visible) heightBefore_ = ToInteger(height);
    surface_.fraData.visible = visible;
    if (fields_.FixedSize) {
        height = visible ? data.Bottom() + button : heightBefore_;
    } else if (visible) {
        if (data.width > plate.width) width = data.width;
        if (data.height > plate.height) height = data.height + button / 2;
    } else {
        width = plate.width;
        height = plate.height + button / 2;
    }
    notifier_.Resize(width, height);
    notifier_.RepaintAll();
}

// Entries are written over in place: a layout of the same plate allocates nothing.
void DataPanel::ListPages() {
    const CompoundWell& subWells = *definition_->CompoundWell();
    auto& entries = panel_.comboSelect.entries;
    entries.resize(static_cast<std::size_t>(subWells.Count()) + kGeneralPage + 1);
    entries[kCommentPage] = "Comments";
    entries[kTagPage] = "Tags";
    entries[kGeneralPage] = "General Properties";
    auto entry = entries.begin() + kGeneralPage;
    for (const auto& subWell : subWells)
        (*++entry = subWell->WellName()) += " Well";
    ChoosePage(kCommentPage);
}

void DataPanel::Reset() {
    panel_.cmdApply.visible = editEnable_;
    Fill(kCommentPage);
}

void DataPanel::ChoosePage(Integer position) {
    notifier_.PanelChanged();
    if (position < 0 || static_cast<std::size_t>(position) >= panel_.comboSelect.entries.size())
        Raise(ErrorNumber::InvalidProcedureCall);
    panel_.comboSelect.position = position;
    Fill(position);
    panel_.Entry(mnuAddNewSubWell).enabled = position >= kGeneralPage;
    for (const auto command : {mnuRemoveSubWell, mnuMoveUp, mnuMoveDown, mnuRenameSubwell})
        panel_.Entry(command).enabled = position > kGeneralPage;
}

void DataPanel::Fill(Integer page) {
    notifier_.PanelChanged();
    FillPage(panel_, *definition_, page, editEnable_);
    const Rect& apply = panel_.cmdApply.box;
    surface_.fraData.box.height = apply.top + 2.5F * apply.height;
    panel_.ControlPic.height = surface_.fraData.box.height - apply.height;
    panel_.cmdApply.enabled = definition_.SubWellsEdited();
}

void DataPanel::Read(Integer page) const { ReadPage(panel_, *definition_, page); }

void DataPanel::TypeRow(Integer row, const String& text) {
    auto& rows = panel_.txtData;
    if (row < 0 || static_cast<std::size_t>(row) >= rows.size())
        Raise(ErrorNumber::SubscriptOutOfRange);
    Type(rows[static_cast<std::size_t>(row)], text);
}

void DataPanel::Type(TextBox& box, const String& text) {
    if (box.text == text) return;
    notifier_.PanelChanged();
    box.text = text;
    panel_.cmdApply.enabled = true;
}

void DataPanel::ChooseStyle(Integer position) {
    DropDown& list = panel_.cmbStyle;
    if (position < 0 || static_cast<std::size_t>(position) >= list.entries.size())
        Raise(ErrorNumber::InvalidProcedureCall);
    notifier_.PanelChanged();
    list.position = position;
    TakeStyle(panel_);
}

} // namespace zorvane
