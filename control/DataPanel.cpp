#include "control/DataPanel.h"

#include "control/Layout.h"
#include "control/PanelPages.h"
#include "control/WellElements.h"
#include "runtime/Rounding.h"

#include <string_view>

namespace zorvane {

void ShowDataPanel(ControlParts parts, Boolean visible) {
    PlateState& state = parts.state;
    const Rect& plate = parts.surface.fraPlate.box;
    const Rect& data = parts.surface.fraData.box;
    const Single button = parts.surface.cmdData.box.height;
    Single width = parts.site.Width();
    Single height = parts.site.Height();

    if (!parts.surface.fraData.visible) state.SavedHeight = ToInteger(height);
    parts.surface.fraData.visible = visible;
    if (state.FixedSize) {
        height = visible ? data.Bottom() + button : state.SavedHeight;
    } else if (visible) {
        if (data.width > plate.width) width = data.width;
        if (data.height > plate.height) height = data.height + button / 2;
    } else {
        width = plate.width;
        height = plate.height + button / 2;
    }
    parts.site.Resize(width, height);
    parts.site.RepaintAll();
}

// Entries are written over in place: a layout of the same plate allocates nothing.
void ListPages(ControlParts parts) {
    const CompoundWell& layout = *parts.state.Definition().CompoundWell();
    auto& entries = parts.surface.panel.comboSelect.entries;
    entries.resize(static_cast<std::size_t>(layout.Count()) + 3);
    entries[kCommentPage] = "Comments";
    entries[kTagPage] = "Tags";
    entries[kGeneralPage] = "General Properties";
    auto entry = entries.begin() + kGeneralPage;
    for (const auto& subWell : layout)
        (*++entry = subWell->WellName()) += " Well";
    ChoosePage(parts, kCommentPage);
}

void ChoosePage(ControlParts parts, Integer position) {
    PanelElements& panel = parts.surface.panel;
    if (position < 0 || static_cast<std::size_t>(position) >= panel.comboSelect.entries.size())
        Raise(ErrorNumber::InvalidProcedureCall);
    panel.comboSelect.position = position;
    FillPage(parts, position);
    panel.Entry(mnuAddNewSubWell).enabled = position >= kGeneralPage;
    for (const auto command : {mnuRemoveSubWell, mnuMoveUp, mnuMoveDown, mnuRenameSubwell})
        panel.Entry(command).enabled = position > kGeneralPage;
}

// The row text boxes take text all the same; without the Apply button it goes nowhere.
void EnableEditing(ControlParts parts, Boolean on) {
    PanelElements& panel = parts.surface.panel;
    const Long back = on ? kWindowBackground : kButtonFace;
    for (TextBox& row : panel.txtData)
        row.back = back;
    panel.txtComment.back = back;
    parts.state.EditEnable = on;
    panel.cmdApply.visible = panel.cmdPopup.visible = on;
    panel.cmbStyle.enabled = panel.txtComment.enabled = on;

    const Rect& apply = panel.cmdApply.box;
    panel.ControlPic.height = on ? apply.Bottom() : apply.top - apply.height / 2;
    parts.surface.fraData.box.height = panel.ControlPic.Bottom() + apply.height;
}

void ApplyPage(ControlParts parts) {
    ReadPage(parts, parts.surface.panel.comboSelect.position);
    LayoutPlate(parts, false);
    parts.site.Raise([](PlateObserver& host) { host.ApplyChanges(); });
    parts.state.LayoutBusy = false;
    ShowDataPanel(parts, true);
}

} // namespace zorvane
