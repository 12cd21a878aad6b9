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

/// What the wells show: the commonest, then the others with the wells that show them:
/// "0, 255: 1 2, 65280: 5".
template <class Shown>
String Groups(Integer wells, Shown shown) {
    std::map<String, String> groups;
    for (Integer well = 0; well < wells; ++well)
        groups[shown(well)] += " " + std::to_string(well);
    const String* commonest = nullptr;
    for (const auto& group : groups)
        if (!commonest || group.second.size() > commonest->size()) commonest = &group.second;
    String text, others;
    for (const auto& [name, members] : groups) {
        if (&members == commonest) {
            text = name;
        } else {
            others.append(", ").append(name).append(":").append(members);
        }
    }
    return text + others;
}

/// What a member of the control gives for the wells.
template <class Value>
String Data(const Plate& plate, Value (Plate::*read)(Integer) const) {
    return Groups(plate.TotalWells(), [&](Integer well) {
        std::ostringstream text;
        text << (plate.*read)(well);
        return text.str();
    });
}

/// What the members of a control give, one after the other.
template <class... Values>
String Given(const Plate& plate, Values (Plate::*... read)() const) {
    std::ostringstream text;
    const auto add = [&](auto member) {
        const Long error = NumberRaisedBy([&] { text << (plate.*member)() << ' '; });
        if (error != 0) text << "error " << error << ' ';
    };
    (add(read), ...);
    String all = text.str();
    all.pop_back();
    return all;
}

void AddCurrentWell(std::map<String, String>& all, const Plate& plate) {
    all["current"] = std::to_string(plate.CurrentWell()) + " = " +
                     std::to_string(plate.WellIndex()) + "," + std::to_string(plate.Row()) + "," +
                     std::to_string(plate.Col());
    all["location"] = Given(plate, &Plate::SubWell, &Plate::Location);
    all["place"] = Given(plate, &Plate::CurrentWellX, &Plate::CurrentWellY, &Plate::CurrentWellZ);
    all["current well"] = Given(plate, &Plate::WellColor, &Plate::RimColor, &Plate::CurrentVolume,
                                &Plate::SolutionDefined, &Plate::WellSelected);
    all["sub-well"] =
        Given(plate, &Plate::Style, &Plate::MaxVolume, &Plate::InitialVolume, &Plate::Depth,
              &Plate::WellDiameter, &Plate::WellSizeX, &Plate::WellSizeY, &Plate::RimWidth,
              &Plate::RimHeight, &Plate::xOffset, &Plate::yOffset);
}

/// The boxes of a well, or nothing when there is no such well.
String WellBoxes(const Surface& surface, Integer wellNo) {
    const auto at = static_cast<std::size_t>(wellNo);
    if (wellNo < 0 || !surface.WellRim[at].visible || !surface.WellBottom[at].visible) return {};
    const Label& text = surface.WellText[at];
    return TextOf(surface.WellRim[at].box) + " / " + TextOf(surface.WellBottom[at].box) +
           (surface.WellBottom[at].border ? " / " : " borderless / ") +
           (text.visible ? TextOf(text.box) : "hidden");
}

void AddWells(std::map<String, String>& all, const Plate& plate) {
    const Surface& surface = plate.Elements();
    const Integer wells = plate.TotalWells();
    all["wells"] = std::to_string(wells);
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
    all["texts"] = Data(plate, &Plate::Text);
    all["errors"] = Data(plate, &Plate::ErrorCode);
    all["volumes"] = Data(plate, &Plate::GetVolume);
    all["defined"] = Data(plate, &Plate::IsDefined);
    all["tags"] = Groups(wells, [&](Integer well) { return surface.WellTag[at(well)]; });
    all["first well"] = WellBoxes(surface, static_cast<Integer>(std::min<Integer>(wells, 1) - 1));
    all["last well"] = WellBoxes(surface, static_cast<Integer>(wells - 1));
}

/// Whatever has happened, a host can paint: every run of the paint order has its elements.
void ExpectPaintable(const Surface& surface) {
    for (const PaintRun& run : surface.paintOrder) {
        const bool wells = run.kind == PaintRun::Kind::Wells;
        EXPECT_LE(static_cast<std::size_t>(run.first + run.count),
                  wells ? surface.WellRim.size() : surface.lblWell.size());
    }
}

void AddPlateArea(std::map<String, String>& all, const Surface& surface) {
    const Frame& area = surface.fraPlate;
    all["plate area"] = area.visible ? TextOf(area.box) + " " + area.caption : "hidden";
    all["area colors"] = std::to_string(area.back) + " " + std::to_string(area.text);
    all["data button"] = surface.cmdData.bold ? "bold" : "";
    String legends;
    for (const Label& legend : surface.lblWell)
        if (legend.visible) legends += (legends.empty() ? "" : " ") + legend.caption;
    all["legends"] = legends;
    all["legend colors"] =
        Groups(static_cast<Integer>(surface.lblWell.size()), [&](Integer legend) {
            return std::to_string(surface.lblWell[static_cast<std::size_t>(legend)].color);
        });
    all["select box"] = surface.SelectBox.visible ? TextOf(surface.SelectBox.box) : String();
}

void AddPanel(std::map<String, String>& all, const Plate& plate) {
    const PanelElements& panel = plate.Elements().panel;
    all["panel"] = plate.DataVisible() ? "open" : "";
    all["panel title"] = plate.Elements().fraData.caption;
    all["panel height"] = SingleText(plate.Elements().fraData.box.height);
    String pages;
    for (const String& page : panel.comboSelect.entries)
        pages += "[" + page + "]";
    all["pages"] = pages;
    all["page"] = std::to_string(panel.comboSelect.position);
    all["comment"] = panel.txtComment.visible ? OnOneLine(panel.txtComment.text) : String("hidden");
    String rows;
    for (std::size_t row = 0; row < panel.txtData.size(); ++row) {
        const RowCaption& caption = panel.lblAnnotation[row];
        const TextBox& box = panel.txtData[row];
        if (!caption.visible && !box.visible) continue;
        rows += "[" + (caption.visible ? caption.caption : "hidden") + "=" +
                (box.visible ? box.text : "hidden") + "]";
    }
    all["rows"] = rows;
    const TextBox& firstRow = panel.txtData[0];
    all["first row"] = !firstRow.visible
                           ? "hidden"
                           : TextOf(firstRow.box) + (firstRow.rightAligned ? " right" : "");
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

std::map<String, String> SnapshotOf(HostDriver& host) {
    const Plate& plate = host.Control();
    std::map<String, String> all = host.Window();
    std::ostringstream grid;
    grid << plate.Rows << 'x' << plate.Cols << 'x' << plate.SubWellCount << " every "
         << plate.XPitch << ',' << plate.YPitch << " on " << plate.xOverall << 'x' << plate.yOverall
         << 'x' << plate.PHeight << " below " << plate.ZClear;
    all["grid"] = grid.str();
    all["scale"] = SingleText(plate.DrawingScale());
    ExpectPaintable(plate.Elements());
    AddCurrentWell(all, plate);
    AddWells(all, plate);
    AddPlateArea(all, plate.Elements());
    AddPanel(all, plate);
    if (RaisedBy([&] { all["text"] = OnOneLine(plate.PlateClassText()); }).number != 0)
        all["text"] = "";
    return all;
}

} // namespace zorvane
