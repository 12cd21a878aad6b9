#include "model/WellStyle.h"
#include "platetext/LineReader.h"
#include "runtime/NumberText.h"
#include "runtime/Text.h"
#include "runtime/TextFunctions.h"
#include "support/TStringPair.h"

#include <array>
#include <iterator>

/// What each keyword of a definition does inside a plate.
namespace zorvane {

namespace {

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

} // namespace

const cmPlate::LineReader::Keyword& cmPlate::LineReader::FindKeyword(std::string_view word) {
    using Line = LineReader;
    static constexpr auto nothing = [](Line&) {};
    static constexpr Keyword unknown{"", nothing, kUnknownKeyword};
    static constexpr Keyword keywords[] = {
        {"XYZ", [](Line& line) { line.ReadCoordinates(); }},
        {"XYZV", [](Line& line) { line.ReadCoordinates(); }},
        {"TAG", [](Line& line) { line.ReadTag(); }, kApplied, false},
        {"TAGLIST", [](Line& line) { line.ReadTagList(); }, kApplied, false},
        {"COLS", [](Line& line) { line.plate_.cols_ = line.WholeValue(); }},
        {"ROWS", [](Line& line) { line.plate_.rows_ = line.WholeValue(); }},
        {"COLLABEL", [](Line& line) { line.ReadColumnLabel(); }},
        {"ROWLABEL", [](Line& line) { line.ReadRowLabel(); }},
        {"XPITCH", [](Line& line) { line.plate_.xPitch_ = line.Value(); }},
        {"YPITCH", [](Line& line) { line.plate_.yPitch_ = line.Value(); }},
        {"XOVERALL", [](Line& line) { line.plate_.xOverall_ = line.Value(); }},
        {"YOVERALL", [](Line& line) { line.plate_.yOverall_ = line.Value(); }},
        {"HEIGHT", [](Line& line) { line.plate_.height_ = line.Value(); }},
        {"SHELFDEPTH", [](Line& line) { line.ReadShelfDepth(); }},
        {"WELL", [](Line& line) { line.ReadWell(); }},
        {"STYLE", [](Line& line) { line.ReadStyle(); }},
        {"XOFFSET", [](Line& line) { line.SubWell().xOffset(line.Value()); }},
        {"YOFFSET", [](Line& line) { line.SubWell().yOffset(line.Value()); }},
        {"DEPTH", [](Line& line) { line.SubWell().Depth(line.Value()); }},
        {"WELLDIAMETER", [](Line& line) { line.SubWell().WellDiameter(line.Value()); }},
        {"WELLSIZEX", [](Line& line) { line.SubWell().WellSizeX(line.Value()); }},
        {"WELLSIZEY", [](Line& line) { line.SubWell().WellSizeY(line.Value()); }},
        {"RIMHEIGHT", [](Line& line) { line.SubWell().RimHeight(line.Value()); }},
        {"RIMWIDTH", [](Line& line) { line.ReadRimWidth(); }},
        {"RIMCENTERX", [](Line& line) { line.SubWell().RimCenterX(line.Value()); }},
        {"RIMCENTERY", [](Line& line) { line.SubWell().RimCenterY(line.Value()); }},
        {"VOLUME", [](Line& line) { line.SubWell().MaxVolume(line.Value()); }},
        {"MOATDEPTH", nothing},
        {"MOATRADIUS", nothing},
        {"END", nothing, kPlateComplete, false},
        {"PLATE", nothing, kPlateComplete, false},
        {"INCLUDE", nothing, kPlateComplete, false},
    };

    // Hashed with open addressing, filled by the compiler and at most half full. A slot holds the
    // position of a keyword counted from 1; 0 is a free one.
    using Slots = std::array<unsigned char, 2 * std::size(keywords)>;
    static constexpr Slots slots = [] {
        Slots filled{};
        for (std::size_t position = 1; position <= std::size(keywords); ++position) {
            std::size_t at = SlotOf(keywords[position - 1].name, filled.size());
            while (filled[at] != 0)
                at = (at + 1) % filled.size();
            filled[at] = static_cast<unsigned char>(position);
        }
        return filled;
    }();
    for (std::size_t at = SlotOf(word, slots.size()); slots[at] != 0;
         at = (at + 1) % slots.size()) {
        const Keyword& keyword = keywords[slots[at] - 1];
        if (EqualNoCase(keyword.name, word)) return keyword;
    }
    return unknown;
}

void cmPlate::LineReader::ReadCoordinates() {
    plate_.available_ = false;
    if (UpperText(plate_.CoordinateSystem) != keyword_) return;
    plate_.available_ = true;
    if (!firstArgument_.empty()) plate_.defaultRotation_ = WholeValue();
    // The first number is the rotation and X both: existing libraries are written that way.
    std::array<Single, 3> coordinates{};
    std::string_view words = argument_;
    commentPlace_ = {};
    for (Single& each : coordinates) {
        const std::string_view word = NextWord(words);
        if (word.empty()) break;
        each = LeadingSingle(word);
        commentPlace_ = word;
    }
    plate_.defaultX_ = coordinates[0];
    plate_.defaultY_ = coordinates[1];
    plate_.defaultZ_ = coordinates[2];
}

void cmPlate::LineReader::ReadTag() {
    AddTag(argument_);
    RecordTags();
}

void cmPlate::LineReader::ReadTagList() {
    std::string_view words = argument_;
    for (auto word = NextWord(words); !word.empty() && word.front() != ';'; word = NextWord(words))
        AddTag(word);
    commentPlace_ = {};
    RecordTags();
}

void cmPlate::LineReader::AddTag(std::string_view tag) {
    plate_.Tags.Add(std::make_shared<TStringPair>(String(tag), String(tag)));
}

void cmPlate::LineReader::RecordTags() { Record("TAGLIST", plate_.TagListText(), -1); }

void cmPlate::LineReader::ReadColumnLabel() {
    plate_.columnLabel_ = firstArgument_;
    plate_.columnDirection_ = DirectionOf(firstArgument_);
}

void cmPlate::LineReader::ReadRowLabel() {
    plate_.rowLabel_ = firstArgument_;
    plate_.rowDirection_ = DirectionOf(firstArgument_);
}

void cmPlate::LineReader::ReadShelfDepth() {
    // Libraries write -0.5 for "no shelf".
    const Single value = Value();
    plate_.shelfDepth_ = value == -0.5F ? kNoShelf : value;
}

void cmPlate::LineReader::ReadWell() {
    const std::string_view name = firstArgument_.empty() ? kDefaultSubWell : firstArgument_;
    StartSubWell(name);
    plate_.reader_.prefix.assign(name).append(".");
}

void cmPlate::LineReader::ReadStyle() {
    WellDetails& subWell = SubWell();
    if (const auto code = WellStyleCode(firstArgument_)) subWell.Style(*code);
}

void cmPlate::LineReader::ReadRimWidth() {
    WellDetails& subWell = SubWell();
    const Single width = Value();
    subWell.RimWidth(width);
    if (subWell.RimHeight() == 0) subWell.RimHeight(width);
}

} // namespace zorvane
