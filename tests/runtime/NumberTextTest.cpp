#include "runtime/NumberText.h"

#include "Test.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

namespace zorvane {
namespace {

// The 15-digit form of a value decides a tie, not the binary value below it: 1.005, 2.675.
TEST(NumberText, FollowsThePicture) {
    const struct {
        Double value;
        const char* picture;
        const char* text;
    } rows[] = {{0, "0.00", "0.00"},
                {-0.0, "0.00", "0.00"},
                {-0.004, "0.00", "0.00"},
                {-0.005, "0.00", "-0.01"},
                {0.001, "0.##", "0."},
                {-2.2F, "0.00", "-2.20"},
                {127.76F, "0.000", "127.760"},
                {1.005, "0.00", "1.01"},
                {2.675, "0.00", "2.68"},
                {0.125, "0.00", "0.13"},
                {9.999, "0.00", "10.00"},
                {0.95, "0.0", "1.0"},
                {0.5, "0", "1"},
                {0.49, "0", "0"},
                {1, "0.0#", "1.0"},
                {2.5, "0.0#", "2.5"},
                {0.25, "0.0#", "0.25"},
                {0.256, "0.0#", "0.26"},
                {12, "000", "012"},
                {0.5, "#.##", ".5"},
                {0, "#", ""},
                {5, "+0.0", "+5.0"},
                {-5, "+0.0", "-5.0"},
                {0.01, "+0.0", "0.0"},
                {1e20, "0.00", "100000000000000000000.00"},
                {1e-300, "0.000", "0.000"},
                {1234567.891, "#,##0.00", "1,234,567.89"},
                {-999.999, "#,##0.00", "-1,000.00"},
                {12, "0,000", "0,012"},
                {0.1255, "0.0%", "12.6%"},
                {0, "0%", "0%"},
                {12345, "0.00E+00", "1.23E+04"},
                {99999, "0.00E+00", "1.00E+05"},
                {-0.00012, "0.0#e-0", "-1.2e-4"},
                {12345, "00.0E-00", "12.3E03"},
                {0, "0.0E+00", "0.0E+00"},
                {1e300, "##0.#E+0", "100.E+298"}};
    for (const auto& row : rows) {
        EXPECT_EQ(FormatPicture(row.value, row.picture), row.text)
            << row.value << " as " << row.picture;
    }
}

TEST(NumberText, RefusesWhatIsNoPictureOrNoNumber) {
    for (const char* const picture :
         {"0.0.0", "x", ",0", "0,.0", "0.0,0", "++0", "0 ", "0E", "0E+", "0E+1", "%0"})
        EXPECT_EQ(NumberRaisedBy([&] { FormatPicture(1, picture); }), 5) << picture;
    for (const Double value : {HUGE_VAL, -HUGE_VAL, std::nan("")}) {
        EXPECT_EQ(NumberRaisedBy([&] { FormatPicture(value, "0.00"); }), 6) << value;
        EXPECT_EQ(NumberRaisedBy([&] { GeneralText(value); }), 6) << value;
        EXPECT_EQ(NumberRaisedBy([&] { SingleText(static_cast<Single>(value)); }), 6) << value;
    }
}

TEST(NumberText, WritesGeneralForm) {
    const struct {
        Double value;
        const char* text;
    } rows[] = {{3, "3"},
                {-0.0, "0"},
                {2.5, "2.5"},
                {-10, "-10"},
                {0.1 + 0.2, "0.3"},
                {1.0 / 3, "0.333333333333333"},
                {0.0001, "0.0001"},
                {0.00001, "1E-05"},
                {0.000012345, "1.2345E-05"},
                {123456789012345, "123456789012345"},
                {999999999999999.9, "1E+15"},
                {-1.5e300, "-1.5E+300"}};
    for (const auto& row : rows)
        EXPECT_EQ(GeneralText(row.value), row.text);
    EXPECT_EQ(SingleText(0.1F), "0.1");
    EXPECT_EQ(SingleText(16777216), "16777216");
    EXPECT_EQ(SingleText(1e10F), "10000000000");
}

TEST(NumberText, EverySingleReadsBackFromItsText) {
    std::mt19937 random(7);
    for (int i = 0; i < 20000; ++i) {
        const auto value = std::bit_cast<Single>(static_cast<std::uint32_t>(random()));
        if (!std::isfinite(value)) continue;
        ASSERT_EQ(LeadingSingle(SingleText(value)), value) << SingleText(value);
    }
    for (const Single value : {std::numeric_limits<Single>::max(),
                               std::numeric_limits<Single>::denorm_min(), 16777217.0F})
        EXPECT_EQ(LeadingSingle(SingleText(value)), value) << SingleText(value);
}

TEST(NumberText, ReadsTheLeadingNumber) {
    const struct {
        const char* text;
        Double value;
    } rows[] = {{"", 0},           {"x1", 0},        {"12", 12},       {"  \t-2.50mm", -2.5},
                {"+.5", 0.5},      {"5.", 5},        {".", 0},         {"-", 0},
                {"- 5", 0},        {"1e3x", 1000},   {"1E+3", 1000},   {"1e", 1},
                {"1e+", 1},        {"1.25.3", 1.25}, {"1,5", 1},       {"inf", 0},
                {"nan", 0},        {"0x10", 0},      {"1e-999999", 0}, {"1e-99999999999", 0},
                {"0e99999999", 0}, {"0.0000e999", 0}};
    for (const auto& row : rows) {
        EXPECT_EQ(LeadingNumber(row.text), row.value) << row.text;
        EXPECT_EQ(LeadingSingle(row.text), row.value) << row.text;
    }
    EXPECT_EQ(LeadingSingle("1e-60"), 0);
    EXPECT_EQ(LeadingSingle("0." + String(100, '0') + "1"), 0);
    EXPECT_EQ(LeadingNumber("0." + String(400, '0') + "1e401"), 1);
    for (const String& text : {String("1e309"), String("-1e99999999999"), String(400, '9')})
        EXPECT_EQ(NumberRaisedBy([&] { LeadingNumber(text); }), 6) << text;
    EXPECT_EQ(NumberRaisedBy([&] { LeadingSingle("-3.5e38"); }), 6);
}

TEST(NumberText, TellsNumbersFromOtherTexts) {
    for (const char* const text : {"1", " -1.5 ", "+2.", ".5e-3", "1E5\r\n"})
        EXPECT_TRUE(IsNumber(text)) << text;
    for (const char* const text :
         {"", " ", "A", "1A", "1 2", ".", "e5", "1e", "inf", "&H1", "1e999"})
        EXPECT_FALSE(IsNumber(text)) << text;
}

TEST(NumberText, ParsesWholeLongs) {
    const struct {
        const char* text;
        Long value;
    } rows[] = {{" 12 ", 12}, {"-3.5", -4},       {"2.5", 2},         {"1e3", 1000},
                {"&h1f", 31}, {"&H0000001F", 31}, {"&HFFFFFFFF", -1}, {"2147483647", 2147483647}};
    for (const auto& row : rows)
        EXPECT_EQ(ParseLong(row.text), row.value) << row.text;
    for (const char* const text : {"", "x", "1x", "&H", "&HG", "&H-1", "-&H1", "1 2"})
        EXPECT_EQ(NumberRaisedBy([&] { ParseLong(text); }), 13) << text;
    for (const char* const text : {"2147483648", "&H100000000", "1e400"})
        EXPECT_EQ(NumberRaisedBy([&] { ParseLong(text); }), 6) << text;
}

} // namespace
} // namespace zorvane
