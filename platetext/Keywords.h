#pragma once

#include "model/WellDetails.h"
#include "runtime/Types.h"

#include <cstdint>
#include <string_view>

namespace zorvane {

/// The keywords of plate definitions.
enum class Keyword : std::uint8_t {
    Rows,
    Cols,
    RowLabel,
    ColLabel,
    XPitch,
    YPitch,
    XOverall,
    YOverall,
    Height,
    ShelfDepth,
    Tag,
    TagList,
    Xyz,
    Xyzv,
    Well,
    Style,
    XOffset,
    YOffset,
    Depth,
    WellDiameter,
    WellSizeX,
    WellSizeY,
    RimWidth,
    RimHeight,
    RimCenterX,
    RimCenterY,
    Volume,
    MoatDepth,
    MoatRadius,
    Plate,
    End,
    Include,
};

/// What a keyword takes.
enum class ArgumentKind : std::uint8_t {
    Ignored, ///< nothing, or something that has no effect
    Name,
    Label,
    Whole,
    Number,
    Style,
    Tag,
    TagList,
    Coordinates,
};

/// Everything that reading, writing, checking and editing know of a keyword.
struct KeywordTraits { // NOLINT(clang-analyzer-optin.performance.Padding): in the order of reading
    Keyword keyword;
    std::string_view name;    ///< in upper case, as cmPlate's setters record it
    std::string_view written; ///< as cmPlate::AsText writes it; empty for what that leaves out
    ArgumentKind argument = ArgumentKind::Ignored;
    bool ofSubWell = false; ///< gives a value of the current sub-well
    /// The number of a sub-well that the keyword gives, null for anything else. WELLDIAMETER can
    /// only be set.
    Single (WellDetails::*number)() const = nullptr;
    void (WellDetails::*setNumber)(Single) = nullptr;
};

const KeywordTraits& TraitsOf(Keyword keyword);

/// The keyword that a word is, in any letter case; null for any other word.
const KeywordTraits* FindKeyword(std::string_view word);

/// The value that a sub-well has for STYLE or one of its numbers, as definitions write it: the
/// name of the style, or a number with two decimals.
String SubWellValueText(const WellDetails& subWell, Keyword keyword);

} // namespace zorvane
