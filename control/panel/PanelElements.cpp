#include "control/panel/PanelElements.h"

#include "model/WellStyle.h"

namespace zorvane {

namespace {

constexpr std::size_t kDesignedRows = 12;
constexpr Single kFirstRowTop = 810;
constexpr Single kRowDistance = 240;
constexpr Single kRowHeight = 195;

} // namespace

PanelElements::PanelElements()
    : mnuPopup{{.caption = "Insert New SubWell", .enabled = false},
               {.caption = "Remove SubWell", .enabled = false},
               {.caption = "Rename SubWell", .enabled = false},
               {.caption = "Move SubWell Up", .enabled = false},
               {.caption = "Move SubWell Down", .enabled = false},
               {.caption = "&Rotate Plate 90"},
               {.caption = "Shift All Wells in &X"},
               {.caption = "Shift All Wells in &Y"},
               {.caption = "Raise Bottoms of All Wells"}} {
    for (const WellStyle& style : kWellStyles)
        cmbStyle.entries.emplace_back(style.caption);
    for (std::size_t row = 0; row < kDesignedRows; ++row) {
        const Single top = kFirstRowTop + kRowDistance * static_cast<Single>(row);
        lblAnnotation.push_back(
            {.box = {0, top, 1710, kRowHeight}, .visible = false, .caption = {}, .Tag = {}});
        txtData.push_back({.box = {1740, top, 750, kRowHeight}, .visible = false, .text = {}});
    }
}

void PanelElements::CreateRow(std::size_t row) {
    if (row < txtData.size()) return;
    // Copied first: the rows move in memory while their list grows.
    const RowCaption caption = lblAnnotation.front();
    const TextBox text = txtData.front();
    lblAnnotation.resize(row + 1, caption);
    txtData.resize(row + 1, text);
}

} // namespace zorvane
