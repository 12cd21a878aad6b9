#include "formats/ExactNumber.h"

#include <gtest/gtest.h>

#include <limits>

namespace zorvane {
namespace {

ExactNumber Number(std::string_view text) { return ExactNumber::Parse(text).value(); }

TEST(ExactNumber, KeepsTheTextAndComputesInDecimals) {
    EXPECT_EQ(Number("+014.3800").Text(), "+014.3800");
    const struct {
        const char *a, *b, *difference;
    } cases[] = {
        {"85.48", "74.24", "11.24"},
        {"0.3", "0.1", "0.2"},
        {"1e1", "12.5E-1", "8.75"},
        {".5", "5.", "-4.5"},
        {"-0.000000000001", "0", "-0.000000000001"},
        {"0.0000000000005", "0", "0.000000000001"},
        {"4000000", "-4000000", "8000000"},
    };
    for (const auto& row : cases)
        EXPECT_EQ((Number(row.a) - Number(row.b)).Text(), row.difference) << row.a;
    EXPECT_EQ(ExactNumber::Of(14.38F)->Text(), "14.38");
    EXPECT_EQ(ExactNumber::Of(1e-5F)->Text(), "0.00001");
}

TEST(ExactNumber, RefusesWhatIsNoNumberOfAPlate) {
    for (const char* text : {"", "-", ".", "e5", "1e", "1e+-2", "1.2.3", "0x10", "nan", "inf", "1 ",
                             "4000000.1", "1e99999999999", "1e7"})
        EXPECT_FALSE(ExactNumber::Parse(text)) << text;
    EXPECT_FALSE(ExactNumber::Parse(String(65, '1')));
    EXPECT_FALSE(ExactNumber::Of(std::numeric_limits<Single>::max()));
    EXPECT_EQ(Number("0e999").Units(), 0);
    EXPECT_EQ(Number("1e-999").Units(), 0);
}

TEST(ExactNumber, IsTheSameDespiteBinaryNoise) {
    EXPECT_TRUE(SameNumber(Number("14.379999999999999"), Number("14.38")));
    EXPECT_FALSE(SameNumber(Number("14.3795"), Number("14.38")));
}

} // namespace
} // namespace zorvane
