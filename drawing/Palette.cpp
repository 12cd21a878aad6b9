#include "drawing/Palette.h"

namespace zorvane {

namespace {

constexpr std::uint32_t kSystemColorBit = 0x80000000U;

constexpr std::uint8_t Byte(std::uint32_t value, int shift) {
    return static_cast<std::uint8_t>(value >> shift & 0xFF);
}

/// From the usual 0xRRGGBB.
constexpr Rgb Hex(std::uint32_t value) { return {Byte(value, 16), Byte(value, 8), Byte(value, 0)}; }

/// How bright a colour looks, from 0 to 255.
constexpr int Brightness(Rgb color) {
    return (color.red * 299 + color.green * 587 + color.blue * 114) / 1000;
}

} // namespace

SystemPalette::SystemPalette()
    : colors{
          Hex(0xC8C8C8), // scroll bar
          Hex(0x3A6EA5), // desktop
          Hex(0x99B4D1), // caption of the active window
          Hex(0xBFCDDB), // caption of other windows
          Hex(0xF0F0F0), // menu
          Hex(0xFFFFFF), // window background
          Hex(0x646464), // window frame
          Hex(0x000000), // menu text
          Hex(0x000000), // window text
          Hex(0x000000), // caption text
          Hex(0xB4B4B4), // border of the active window
          Hex(0xF4F7FC), // border of other windows
          Hex(0xABABAB), // application workspace
          Hex(0x2A6FB8), // selected item
          Hex(0xFFFFFF), // text of a selected item
          Hex(0xF0F0F0), // button face
          Hex(0xA0A0A0), // button shadow
          Hex(0x6D6D6D), // grey text
          Hex(0x000000), // button text
          Hex(0x434E54), // caption text of other windows
          Hex(0xFFFFFF), // button highlight
          Hex(0x696969), // button dark shadow
          Hex(0xE3E3E3), // button light edge
          Hex(0x000000), // tooltip text
          Hex(0xFFFFE1), // tooltip background
          Hex(0xF0F0F0), // not in use
          Hex(0x0066CC), // link
          Hex(0xB9D1EA), // end of the active caption's gradient
          Hex(0xD7E4F2), // end of the other captions' gradient
          Hex(0x2A6FB8), // selected menu entry
          Hex(0xF0F0F0), // menu bar
      } {}

Rgb Resolve(Long color, const SystemPalette& palette) {
    const auto bits = static_cast<std::uint32_t>(color);
    if ((bits & kSystemColorBit) == 0) return {Byte(bits, 0), Byte(bits, 8), Byte(bits, 16)};
    const std::size_t index = Byte(bits, 0);
    return index < palette.colors.size() ? palette.colors[index] : kBlack;
}

Rgb ReadableOn(Rgb back, Rgb text) {
    constexpr int kLeastDifference = 90;
    const int backBrightness = Brightness(back);
    const int difference = Brightness(text) - backBrightness;
    if (difference >= kLeastDifference || difference <= -kLeastDifference) return text;
    return backBrightness < 128 ? kWhite : kBlack;
}

} // namespace zorvane
