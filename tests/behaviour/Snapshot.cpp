#include "behaviour/Snapshot.h"

#include "Test.h"
#include "runtime/NumberText.h"

#include <utility>

namespace zorvane {

namespace {

String TextOf(const Rect& box) {
    return SingleText(box.left) + "," + SingleText(box.top) + " " + SingleText(box.width) + "x" +
           SingleText(box.height);
}

template <class... Numbers>
String Event(const char* name, Numbers... numbers) {
    String line = name;
    ((line += " " + SingleText(static_cast<Single>(numbers))), ...);
    return line + "\n";
}

/// The wells by what each shows, the commonest left out: "000000 1 2, FFFFFF 5".
template <class Shown>
String Groups(Integer wells, Shown shown) {
    std::map<String, String> groups;
    for (Integer well = 0; well < wells; ++well)
        groups[shown(well)] += " " + std::to_string(well);
    const String* commonest = nullptr;
    for (const auto& group : groups)
        if (!commonest || group.second.size() > commonest->size()) commonest = &group.second;
    String text;
    for (const auto& [name, members] : groups)
        if (&members != commonest) text += (text.empty() ? "" : ", ") + name + ":" + members;
    return text;
}

void AddWells(std::map<String, String>& all, const Plate& plate) {
    const Surface& surface = plate.Elements();
    const Integer wells = plate.TotalWells();
    all["wells"] = std::to_string(wells);
    all["current"] = std::to_string(plate.CurrentWell()) + " = " +
                     std::to_string(plate.WellIndex()) + "," + std::to_string(plate.Row()) + "," +
                     std::to_string(plate.Col());
    String selected = std::to_string(plate.NSelected()) + ":";
    for (Integer well = 0; well < wells; ++well)
        if (plate.IsSelected(well)) selected += " " + std::to_string(well);
    all["selected"] = selected;
    all["array"] = std::to_string(plate.ArrayX()) + "," + std::to_string(plate.ArrayY()) + " " +
                   std::to_string(plate.ArrayWidth()) + "x" + std::to_string(plate.ArrayHeight());
    const auto at = [](Integer well) { return static_cast<std::size_t>(well); };
    all["rims"] =
        Groups(wells, [&](Integer well) { return std::to_string(surface.WellRim[at(well)].fill); });
    all["bottoms"] = Groups(
        wells, [&](Integer well) { return std::to_string(surface.WellBottom[at(well)].fill); });
    all["shapes"] = Groups(wells, [&](Integer well) {
        return std::to_string(static_cast<int>(surface.WellRim[at(well)].kind)) + "/" +
               std::to_string(static_cast<int>(surface.WellBottom[at(well)].kind));
    });
    all["captions"] =
        Groups(wells, [&](Integer well) { return surface.WellText[at(well)].caption; });
    all["plate area"] = TextOf(surface.fraPlate.box) + " " + surface.fraPlate.caption;
    String legends;
    for (const Label& legend : surface.lblWell)
        if (legend.visible) legends += (legends.empty() ? "" : " ") + legend.caption;
    all["legends"] = legends;
    all["select box"] = surface.SelectBox.visible ? TextOf(surface.SelectBox.box) : String();
}

void AddPanel(std::map<String, String>& all, const Plate& plate) {
    const PanelElements& panel = plate.Elements().panel;
    all["panel"] = plate.DataVisible() ? "open" : "";
    all["panel height"] = SingleText(plate.Elements().fraData.box.height);
    String pages;
    for (const String& page : panel.comboSelect.entries)
        pages += "[" + page + "]";
    all["pages"] = pages;
    all["page"] = std::to_string(panel.comboSelect.position);
    all["comment"] = panel.txtComment.visible ? OnOneLine(panel.txtComment.text) : String("hidden");
    String rows;
    for (std::size_t row = 0; row < panel.txtData.size(); ++row) {
        if (panel.lblAnnotation[row].visible)
            rows += "[" + panel.lblAnnotation[row].caption + "=" + panel.txtData[row].text + "]";
    }
    all["rows"] = rows;
    all["first row"] =
        TextOf(panel.txtData[0].box) + (panel.txtData[0].rightAligned ? " right" : "");
    all["style"] = !panel.cmbStyle.visible
                       ? String("hidden")
                       : std::to_string(panel.cmbStyle.position) + " " +
                             std::to_string(static_cast<int>(panel.StyleRim.kind)) + "/" +
                             std::to_string(static_cast<int>(panel.StyleWell.kind));
    all["apply top"] = SingleText(panel.cmdApply.box.top);
    all["apply"] = !panel.cmdApply.visible ? "hidden" : panel.cmdApply.enabled ? "enabled" : "";
    all["pending"] = plate.EditsPending() ? "yes" : "";
    all["takes edits"] = panel.txtComment.enabled && panel.cmbStyle.enabled &&
                                 panel.cmdPopup.visible && panel.txtData[0].back != kButtonFace
                             ? "yes"
                             : "";
    String menu;
    for (const MenuEntry& entry : panel.mnuPopup)
        menu += entry.enabled ? "+" : "-";
    all["menu"] = menu;
}

} // namespace

String OnOneLine(String text) {
    for (std::size_t at = 0; (at = text.find("\r\n", at)) != text.npos;)
        text.replace(at, 2, " | ");
    return text;
}

void EventLog::DoubleClick() { lines_ += Event("DoubleClick"); }
void EventLog::Click() { lines_ += Event("Click"); }
void EventLog::SelectWell(Integer wellNo) { lines_ += Event("SelectWell", wellNo); }
void EventLog::SelectMultipleWells() { lines_ += Event("SelectMultipleWells"); }
void EventLog::MouseDown(Integer button, Integer shift, Single x, Single y) {
    lines_ += Event("MouseDown", button, shift, x, y);
}
void EventLog::MouseUp(Integer button, Integer shift, Single x, Single y) {
    lines_ += Event("MouseUp", button, shift, x, y);
}
void EventLog::DragMove(Integer button, Integer shift, Integer columns, Integer rows) {
    lines_ += Event("DragMove", button, shift, columns, rows);
}
void EventLog::ApplyChanges() { lines_ += Event("ApplyChanges"); }

String EventLog::Take() { return std::exchange(lines_, {}); }

std::map<String, String> SnapshotOf(HostDriver& host) {
    const Plate& plate = host.Control();
    std::map<String, String> all = host.Window();
    AddWells(all, plate);
    AddPanel(all, plate);
    if (RaisedBy([&] { all["text"] = OnOneLine(plate.PlateClassText()); }).number != 0)
        all["text"] = "";
    for (const String& name : host.Unseen())
        all.erase(name);
    return all;
}

} // namespace zorvane
