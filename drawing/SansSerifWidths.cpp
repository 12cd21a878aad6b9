#include "drawing/SansSerifWidths.h"

#include "runtime/Text.h"

#include <array>

namespace zorvane {

namespace {

constexpr Long kFirst = ' ';

// clang-format off
/// Of the printable ASCII characters, in hundredths of the font's size.
constexpr std::array<std::uint8_t, 95> kWidths = {
     28,  28,  36,  56,  56,  89,  67,  19,  33,  33,  39,  58,  28,  33,  28,  28, // blank to /
     56,  56,  56,  56,  56,  56,  56,  56,  56,  56,  28,  28,  58,  58,  58,  56, // 0 to ?
    102,  67,  67,  72,  72,  67,  61,  78,  72,  28,  50,  67,  56,  83,  72,  78, // @ to O
     67,  78,  72,  67,  61,  72,  67,  94,  67,  67,  61,  28,  28,  28,  47,  56, // P to _
     33,  56,  56,  50,  56,  56,  28,  56,  56,  22,  22,  50,  22,  83,  56,  56, // ` to o
     56,  56,  33,  50,  28,  56,  50,  72,  50,  50,  50,  33,  26,  33,  58, // p to ~
};
// clang-format on

/// Letters beyond ASCII are mostly as wide as the wider ones of it.
constexpr Long kOtherWidth = 67;
constexpr Single kBoldFactor = 1.07F;

Long WidthOf(Long code) {
    const Long index = code - kFirst;
    return index >= 0 && index < static_cast<Long>(kWidths.size())
               ? kWidths[static_cast<std::size_t>(index)]
               : kOtherWidth;
}

} // namespace

Single SansSerifWidth(std::string_view text, Boolean bold) {
    Double hundredths = 0;
    while (!text.empty()) {
        const CharacterAt character = FirstCharacter(text);
        hundredths += WidthOf(character.code);
        text.remove_prefix(character.bytes);
    }
    const auto width = static_cast<Single>(hundredths / 100);
    return bold ? width * kBoldFactor : width;
}

} // namespace zorvane
