#include "control/DataPanel.h"
#include "control/PanelPages.h"
#include "control/Plate.h"
#include "control/SubWellCommands.h"
#include "runtime/RuntimeError.h"

/// The members of Plate that belong to the details panel.
namespace zorvane {

namespace {

/// Runs a change of the panel and tells the host of it, also of what a failing one has changed.
template <class Change>
void ChangePanel(ControlParts parts, Change change) {
    parts.site.Operate([&] {
        parts.site.PanelChanged();
        const Rect before = parts.surface.fraData.box;
        if (parts.surface.fraData.visible) parts.site.Repaint(before);
        change();
        if (parts.surface.fraData.visible) parts.site.Repaint(parts.surface.fraData.box);
    });
}

} // namespace

Boolean Plate::DataVisible() const { return surface_.fraData.visible; }

void Plate::DataVisible(Boolean value) {
    site_.Operate([&] { ShowDataPanel(Parts(), value); });
}

void Plate::DataButtonPressed() {
    site_.Operate([&] { DataVisible(!DataVisible()); });
}

void Plate::DefaultRimColor(Long value) {
    PlateState::DefaultRimColor = value;
    ChangePanel(Parts(), [&] { surface_.panel.StyleRim.fill = value; });
}

void Plate::DefaultWellColor(Long value) {
    PlateState::DefaultWellColor = value;
    ChangePanel(Parts(), [&] { surface_.panel.StyleWell.fill = value; });
}

void Plate::EditEnable(Boolean value) {
    ChangePanel(Parts(), [&] { EnableEditing(Parts(), value); });
}

void Plate::SetDataDisplay(Integer Index) {
    ChangePanel(Parts(), [&] { FillPage(Parts(), Index); });
}

void Plate::GetDataDisplay(Integer Index) {
    site_.Operate([&] { ReadPage(Parts(), Index); });
}

void Plate::PageChosen(Integer position) {
    ChangePanel(Parts(), [&] { ChoosePage(Parts(), position); });
}

void Plate::CommentTyped(const String& text) { TextTyped(surface_.panel.txtComment, text); }

void Plate::RowTyped(Integer row, const String& text) {
    auto& rows = surface_.panel.txtData;
    if (row < 0 || static_cast<std::size_t>(row) >= rows.size())
        Raise(ErrorNumber::SubscriptOutOfRange);
    TextTyped(rows[static_cast<std::size_t>(row)], text);
}

void Plate::TextTyped(TextBox& box, const String& text) {
    if (box.text == text) return;
    ChangePanel(Parts(), [&] {
        box.text = text;
        surface_.panel.cmdApply.enabled = true;
    });
}

void Plate::StyleChosen(Integer position) {
    DropDown& list = surface_.panel.cmbStyle;
    if (position < 0 || static_cast<std::size_t>(position) >= list.entries.size())
        Raise(ErrorNumber::InvalidProcedureCall);
    ChangePanel(Parts(), [&] {
        list.position = position;
        TakeStyle(surface_.panel);
    });
}

void Plate::ApplyPressed() {
    ChangePanel(Parts(), [&] { ApplyPage(Parts()); });
}

void Plate::MenuPressed() {
    site_.Operate([&] {
        const Integer chosen = site_.Choose(surface_.panel.mnuPopup);
        if (chosen >= mnuAddNewSubWell && chosen <= mnuShiftHeight)
            MenuChosen(static_cast<SubWellCommand>(chosen));
    });
}

void Plate::MenuChosen(SubWellCommand command) {
    ChangePanel(Parts(), [&] { RunSubWellCommand(Parts(), command); });
}

} // namespace zorvane
