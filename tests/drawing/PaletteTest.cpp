#include "drawing/Palette.h"

#include "control/PlateTypes.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

TEST(PaletteTest, ResolvesColours) {
    SystemPalette palette;
    palette.colors[0x0F] = {1, 2, 3};
    const auto resolves = [&palette](std::uint32_t color, Rgb expected) {
        EXPECT_EQ(Resolve(static_cast<Long>(color), palette), expected) << std::hex << color;
    };
    resolves(0x000000FF, {255, 0, 0}); // the low byte is red
    resolves(0x00102030, {0x30, 0x20, 0x10});
    resolves(0x7F0000FF, {255, 0, 0}); // no system colour without the top bit
    resolves(0x8000000F, {1, 2, 3});
    resolves(0x80FFFF0F, {1, 2, 3});
    resolves(0x80000005, kWhite);
    resolves(0x8000001E, {0xF0, 0xF0, 0xF0}); // the last one
    resolves(0x8000001F, kBlack);
    resolves(0xFFFFFFFF, kBlack);
}

TEST(PaletteTest, KeepsTextReadable) {
    constexpr Rgb kGrey{0x80, 0x80, 0x80};
    constexpr Rgb kYellow{0xFF, 0xFF, 0};
    EXPECT_EQ(ReadableOn(kWhite, kBlack), kBlack);
    EXPECT_EQ(ReadableOn(kGrey, kBlack), kBlack);
    EXPECT_EQ(ReadableOn(kYellow, {0xC0, 0, 0}), (Rgb{0xC0, 0, 0})) << "readable as it is";
    EXPECT_EQ(ReadableOn(kBlack, kBlack), kWhite);
    EXPECT_EQ(ReadableOn({0, 0, 0xC0}, kBlack), kWhite) << "blue is dark";
    EXPECT_EQ(ReadableOn(kYellow, kWhite), kBlack);
}

} // namespace
} // namespace zorvane
