#pragma once

#include "control/Elements.h"
#include "platform/PopupMenu.h"
#include "runtime/Export.h"
#include "runtime/Types.h"

#include <cstddef>
#include <vector>

namespace zorvane {

/// The commands of the details panel's menu, numbered as its entries.
enum SubWellCommand : Integer {
    mnuAddNewSubWell = 0,
    mnuRemoveSubWell = 1,
    mnuRenameSubwell = 2,
    mnuMoveUp = 3,
    mnuMoveDown = 4,
    mnuRotate90 = 5,
    mnuShiftHorizontal = 6,
    mnuShiftVertical = 7,
    mnuShiftHeight = 8,
};

/// Pages of the details panel by their position in comboSelect; sub-well s (from 1) has page
/// kGeneralPage + s.
inline constexpr Integer kCommentPage = 0;
inline constexpr Integer kTagPage = 1;
inline constexpr Integer kGeneralPage = 2;

/// What the details panel shows, as it is designed. ControlPic is relative to fraData, all
/// other elements to ControlPic, which cuts off what reaches out of it. From back to front: the
/// rows in their order, then txtComment, which hides them all, then the style controls, which hide
/// row 0, then the Apply button.
struct ZORVANE_EXPORT PanelElements {
    PanelElements();

    Rect ControlPic{120, 270, 2595, 4245};
    DropDown comboSelect{.box = {0, 240, 2085, 315}, .entries = {}};
    Button cmdPopup{.box = {2190, 240, 330, 315}, .visible = false, .caption = "...."};
    TextBox txtComment{.box = {0, 660, 2535, 3015}, .enabled = false, .text = {}};

    // One caption and one text box for each row; there are always as many of both.
    std::vector<RowCaption> lblAnnotation;
    std::vector<TextBox> txtData;

    /// One entry for each style, by its code.
    DropDown cmbStyle{
        .box = {1740, 690, 750, 315}, .visible = false, .enabled = false, .entries = {}};
    Shape StyleRim{.box = {1380, 735, 255, 255}};
    Shape StyleWell{.box = {1440, 795, 135, 135}};
    Button cmdApply{.box = {420, 3900, 1695, 315},
                    .visible = false,
                    .enabled = false,
                    .caption = "Apply Changes"};

    /// The entries of the menu that cmdPopup opens, by SubWellCommand.
    std::vector<MenuEntry> mnuPopup;

    MenuEntry& Entry(SubWellCommand command) { return mnuPopup[static_cast<std::size_t>(command)]; }
    /// Makes sure that there is a row of this number, as a copy of row 0, over which it then lies.
    void CreateRow(std::size_t row);
};

} // namespace zorvane
