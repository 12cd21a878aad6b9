#include "control/panel/PanelPages.h"

#include "control/panel/FieldCaptions.h"
#include "model/WellStyle.h"
#include "runtime/Text.h"
#include "support/TStringPair.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string_view>

namespace zorvane {

namespace {

constexpr Single kTagWidth = 1800;
constexpr Single kValueWidth = 750;
constexpr Single kBelowComment = 240;

/// Gives a text box a width; its right edge stays.
void Widen(TextBox& box, Single width) {
    box.box.left = box.box.left + box.box.width - width;
    box.box.width = width;
}

class Page {
  public:
    Page(PanelElements& panel, const cmPlate& plate, Boolean editable)
        : panel_(panel), plate_(plate), editable_(editable) {}

    void Fill(Integer page) {
        const bool style = page > kGeneralPage;
        panel_.StyleWell.visible = panel_.StyleRim.visible = panel_.cmbStyle.visible = style;
        panel_.txtComment.visible = page == kCommentPage;
        if (page == kCommentPage) FillComment();
        if (page == kTagPage) FillTags();
        if (page == kGeneralPage) FillGeneral();
        if (style) FillSubWell(Long{page} - kGeneralPage);
        if (page >= kTagPage) EndRows();
    }

  private:
    void FillComment() {
        panel_.txtComment.text = plate_.Comment;
        panel_.cmdApply.box.top = panel_.txtComment.box.Bottom() + kBelowComment;
    }

    /// While the panel can be edited, the rows after the tags wait for new ones.
    void FillTags() {
        const std::size_t tags = static_cast<std::size_t>(plate_.Tags.Count());
        const std::size_t all = panel_.txtData.size();
        rows_ = editable_ ? all : std::min(tags, all);
        for (std::size_t row = 0; row < rows_; ++row) {
            const Long tag = static_cast<Long>(row) + 1;
            const String text = row < tags ? plate_.Tags.Pair(tag)->Name() : String();
            ShowRow(row, "Tag " + std::to_string(tag), text);
            Widen(panel_.txtData[row], kTagWidth);
            panel_.txtData[row].rightAligned = false;
        }
        if (rows_ > 0) return;
        ShowRow(0, "No Tags Defined", panel_.txtData[0].text);
        panel_.txtData[0].visible = false;
        rows_ = 1;
    }

    void FillGeneral() {
        for (const auto& pair : plate_.Properties) {
            const String& name = pair->Name();
            if (name.find('.') == name.npos && !EqualNoCase(name, "TAGLIST"))
                ShowProperty(*pair, name);
        }
    }

    void FillSubWell(Long position) {
        const auto subWell = plate_.CompoundWell()->Item(position);
        ShowStyle(subWell->Style());
        const String prefix = subWell->WellName() + ".";
        for (const auto& pair : plate_.Properties) {
            if (!StartsWithNoCase(pair->Name(), prefix)) continue;
            const std::string_view field = std::string_view(pair->Name()).substr(prefix.size());
            if (!EqualNoCase(field, "Well")) ShowProperty(*pair, field);
        }
    }

    /// A style that has no entry shows none.
    void ShowStyle(Long style) {
        const Integer position = FindWellStyle(style) ? static_cast<Integer>(style) : Integer{-1};
        if (position == panel_.cmbStyle.position) return;
        panel_.cmbStyle.position = position;
        TakeStyle(panel_);
    }

    void ShowProperty(const TStringPair& pair, std::string_view field) {
        const std::size_t row = rows_++;
        panel_.CreateRow(row);
        ShowRow(row, FieldCaption(field), pair.Value());
        Widen(panel_.txtData[row], kValueWidth);
        panel_.txtData[row].rightAligned = true;
        panel_.lblAnnotation[row].Tag = pair.Name();
    }

    void ShowRow(std::size_t row, const String& caption, const String& text) {
        panel_.lblAnnotation[row].caption = caption;
        panel_.lblAnnotation[row].visible = true;
        panel_.txtData[row].text = text;
        panel_.txtData[row].visible = true;
    }

    /// The Apply button follows the last row that the page uses, or row 0 when it uses none.
    void EndRows() {
        const Rect& last = panel_.txtData[rows_ > 0 ? rows_ - 1 : 0].box;
        panel_.cmdApply.box.top = last.top + 2 * last.height;
        for (std::size_t row = rows_; row < panel_.txtData.size(); ++row) {
            panel_.lblAnnotation[row].visible = false;
            panel_.txtData[row].visible = false;
        }
    }

    PanelElements& panel_;
    const cmPlate& plate_;
    Boolean editable_;
    std::size_t rows_ = 0; ///< in use
};

/// Every row is a tag here, a hidden one too: hosts that read this page without having it shown get
/// what the other page left in the rows.
void ReadTags(const PanelElements& panel, cmPlate& plate) {
    plate.Tags.Clear();
    String list;
    for (const TextBox& row : panel.txtData) {
        const String tag(Trim(row.text));
        if (tag.empty()) continue;
        plate.Tags.Add(std::make_shared<TStringPair>(tag, tag));
        list += " " + tag;
    }
    if (plate.Properties.IndexOf("TagList") != 0) plate.Properties.Remove("Taglist");
    if (list.empty()) return;
    plate.Properties.Add(std::make_shared<TStringPair>("TagList", list.substr(1)), -1);
}

void ReadProperties(const PanelElements& panel, const cmPlate& plate) {
    for (std::size_t row = 0; row < panel.txtData.size(); ++row) {
        if (!panel.lblAnnotation[row].visible) continue;
        const auto pair = plate.Properties.Pair(panel.lblAnnotation[row].Tag);
        if (!pair) Raise(ErrorNumber::ObjectNotSet);
        pair->Value(panel.txtData[row].text);
    }
}

} // namespace

void FillPage(PanelElements& panel, const cmPlate& plate, Integer page, Boolean editable) {
    Page(panel, plate, editable).Fill(page);
}

void ReadPage(const PanelElements& panel, cmPlate& plate, Integer page) {
    if (page == kCommentPage) plate.Comment = panel.txtComment.text;
    if (page == kTagPage) ReadTags(panel, plate);
    if (page >= kGeneralPage) ReadProperties(panel, plate);
    plate.SetFromText(plate.Text());
}

// Row 0 takes the name whatever property it shows.
void TakeStyle(PanelElements& panel) {
    panel.cmdApply.enabled = true;
    const WellStyle* const style = FindWellStyle(panel.cmbStyle.position);
    if (!style) return;
    // Unlike the circles of the drawing, round samples fill their boxes.
    const auto shape = [](bool round) { return round ? ShapeKind::Oval : ShapeKind::Rectangle; };
    panel.txtData[0].text = style->caption;
    panel.StyleWell.kind = shape(style->roundBottom);
    panel.StyleRim.kind = shape(style->roundRim);
}

} // namespace zorvane
