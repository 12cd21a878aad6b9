#include "platetext/Keywords.h"

#include "model/WellStyle.h"
#include "runtime/NumberText.h"
#include "runtime/Text.h"

#include <array>
#include <iterator>

namespace zorvane {

namespace {

using Kind = ArgumentKind;

constexpr KeywordTraits SubWellNumber(Keyword keyword, std::string_view name,
                                      std::string_view written,
                                      Single (WellDetails::*number)() const,
                                      void (WellDetails::*setNumber)(Single)) {
    return {keyword, name, written, Kind::Number, true, number, setNumber};
}

/// In the order of the enumeration.
constexpr KeywordTraits kKeywords[] = {
    {Keyword::Rows, "ROWS", "Rows", Kind::Whole},
    {Keyword::Cols, "COLS", "Cols", Kind::Whole},
    {Keyword::RowLabel, "ROWLABEL", "RowLabel", Kind::Label},
    {Keyword::ColLabel, "COLLABEL", "ColLabel", Kind::Label},
    {Keyword::XPitch, "XPITCH", "Xpitch", Kind::Number},
    {Keyword::YPitch, "YPITCH", "Ypitch", Kind::Number},
    {Keyword::XOverall, "XOVERALL", "Xoverall", Kind::Number},
    {Keyword::YOverall, "YOVERALL", "Yoverall", Kind::Number},
    {Keyword::Height, "HEIGHT", "Height", Kind::Number},
    {Keyword::ShelfDepth, "SHELFDEPTH", "ShelfDepth", Kind::Number},
    {Keyword::Tag, "TAG", "", Kind::Tag},
    {Keyword::TagList, "TAGLIST", "TAGLIST", Kind::TagList},
    {Keyword::Xyz, "XYZ", "", Kind::Coordinates},
    {Keyword::Xyzv, "XYZV", "", Kind::Coordinates},
    {Keyword::Well, "WELL", "Well", Kind::Name},
    {Keyword::Style, "STYLE", "Style", Kind::Style, true},
    SubWellNumber(Keyword::XOffset, "XOFFSET", "Xoffset", &WellDetails::xOffset,
                  &WellDetails::xOffset),
    SubWellNumber(Keyword::YOffset, "YOFFSET", "Yoffset", &WellDetails::yOffset,
                  &WellDetails::yOffset),
    SubWellNumber(Keyword::Depth, "DEPTH", "Depth", &WellDetails::Depth, &WellDetails::Depth),
    SubWellNumber(Keyword::WellDiameter, "WELLDIAMETER", "", nullptr, &WellDetails::WellDiameter),
    SubWellNumber(Keyword::WellSizeX, "WELLSIZEX", "WellSizeX", &WellDetails::WellSizeX,
                  &WellDetails::WellSizeX),
    SubWellNumber(Keyword::WellSizeY, "WELLSIZEY", "WellSizeY", &WellDetails::WellSizeY,
                  &WellDetails::WellSizeY),
    SubWellNumber(Keyword::RimWidth, "RIMWIDTH", "RimWidth", &WellDetails::RimWidth,
                  &WellDetails::RimWidth),
    SubWellNumber(Keyword::RimHeight, "RIMHEIGHT", "RimHeight", &WellDetails::RimHeight,
                  &WellDetails::RimHeight),
    SubWellNumber(Keyword::RimCenterX, "RIMCENTERX", "RimCenterX", &WellDetails::RimCenterX,
                  &WellDetails::RimCenterX),
    SubWellNumber(Keyword::RimCenterY, "RIMCENTERY", "RimCenterY", &WellDetails::RimCenterY,
                  &WellDetails::RimCenterY),
    SubWellNumber(Keyword::Volume, "VOLUME", "Volume", &WellDetails::MaxVolume,
                  &WellDetails::MaxVolume),
    {Keyword::MoatDepth, "MOATDEPTH", ""},
    {Keyword::MoatRadius, "MOATRADIUS", ""},
    {Keyword::Plate, "PLATE", "Plate", Kind::Name},
    {Keyword::End, "END", ""},
    {Keyword::Include, "INCLUDE", ""},
};

static_assert(
    [] {
        for (std::size_t at = 0; at < std::size(kKeywords); ++at)
            if (kKeywords[at].keyword != static_cast<Keyword>(at)) return false;
        return true;
    }(),
    "the table has the order of the enumeration");

/// Where the search for a keyword begins; any letter case gives the same place.
constexpr std::size_t SlotOf(std::string_view word, std::size_t slots) {
    const auto letter = [word](std::size_t at) {
        return static_cast<std::size_t>(static_cast<unsigned char>(ToUpperAscii(word[at])));
    };
    // With these factors every keyword has a slot of its own.
    return (3 * word.size() + letter(0) + 5 * letter(word.size() / 2) +
            15 * letter(word.size() - 1)) %
           slots;
}

// Hashed with open addressing, filled by the compiler and half full. A slot holds the position of
// a keyword counted from 1; 0 is a free one.
constexpr auto kSlots = [] {
    std::array<unsigned char, 2 * std::size(kKeywords)> filled{};
    for (std::size_t position = 1; position <= std::size(kKeywords); ++position) {
        std::size_t at = SlotOf(kKeywords[position - 1].name, filled.size());
        while (filled[at] != 0)
            at = (at + 1) % filled.size();
        filled[at] = static_cast<unsigned char>(position);
    }
    return filled;
}();

} // namespace

const KeywordTraits& TraitsOf(Keyword keyword) {
    return kKeywords[static_cast<std::size_t>(keyword)];
}

const KeywordTraits* FindKeyword(std::string_view word) {
    if (word.empty()) return nullptr;
    for (std::size_t at = SlotOf(word, kSlots.size()); kSlots[at] != 0;
         at = (at + 1) % kSlots.size()) {
        const KeywordTraits& traits = kKeywords[kSlots[at] - 1];
        if (EqualNoCase(traits.name, word)) return &traits;
    }
    return nullptr;
}

String SubWellValueText(const WellDetails& subWell, Keyword keyword) {
    if (keyword == Keyword::Style) {
        const WellStyle* const style = FindWellStyle(subWell.Style());
        return style ? String(style->name) : String();
    }
    return FormatPicture((subWell.*TraitsOf(keyword).number)(), "0.00");
}

} // namespace zorvane
