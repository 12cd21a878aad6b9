#pragma once

#include "runtime/Types.h"

namespace zorvane {

/// What SetWell does with the selection besides making the well current.
enum WellSelectAction : Long {
    wsSilent = 0,         ///< leave every selection alone
    wsSingle = 1,         ///< clear the selection, then select the well
    wsAddToSelection = 2, ///< toggle the well, keeping the others when MultipleSelect is True
};

/// In which order an array fill walks its block.
enum ArrayFillOrder : Long {
    foTopLeftHorizontal = 0,
    foTopLeftVertical = 1,
    foTopRightHorizontal = 2,
    foTopRightVertical = 3,
    foBottomLeftHorizontal = 4,
    foBottomLeftVertical = 5,
    foBottomRightHorizontal = 6,
    foBottomRightVertical = 7,
};

/// Mouse buttons and shift keys as the pointer and key events carry them; shift keys add up.
inline constexpr Integer kLeftButton = 1;
inline constexpr Integer kRightButton = 2;
inline constexpr Integer kMiddleButton = 4;
inline constexpr Integer kShiftKey = 1;
inline constexpr Integer kCtrlKey = 2;
inline constexpr Integer kAltKey = 4;

/// The platform's key codes of the keys that move the current well.
inline constexpr Integer kLeftArrow = 37;
inline constexpr Integer kUpArrow = 38;
inline constexpr Integer kRightArrow = 39;
inline constexpr Integer kDownArrow = 40;

/// A colour is 0x00BBGGRR, or, with the top bit set, the index of a system colour in its low byte,
/// which whoever paints resolves.
constexpr Long SystemColor(std::uint32_t index) { return static_cast<Long>(0x80000000U | index); }
inline constexpr Long kWindowBackground = SystemColor(0x05);
inline constexpr Long kButtonFace = SystemColor(0x0F);
inline constexpr Long kButtonShadow = SystemColor(0x10);
inline constexpr Long kGrayText = SystemColor(0x11);
inline constexpr Long kButtonText = SystemColor(0x12);

// How a new control draws until its host chooses otherwise.
inline constexpr Long kDefaultWellColor = 0xE0E0E0;
inline constexpr Long kDefaultSelectColor = 0x808080;
inline constexpr Single kDefaultScale = 50; ///< drawing units per millimetre

/// The colour that leaves wells as they are where a block of them is selected or filled.
inline constexpr Long kNoColor = -1;

} // namespace zorvane
