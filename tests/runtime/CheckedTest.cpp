#include "runtime/Checked.h"
#include "Test.h"
#include "runtime/Rounding.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zorvane {
namespace {

TEST(Checked, ComputesLikeArithmetic) {
    const Integer row = 7;
    const Integer cols = 12;
    const Integer index = Checked(row) * cols + 11;
    EXPECT_EQ(index, 95);
    EXPECT_EQ((Checked(-7) / 2).Value(), -3);
    EXPECT_EQ((Checked(-7) % 2).Value(), -1);
}

TEST(Checked, FailsOnEveryIntermediateOverflow) {
    const Integer big = 32767;
    EXPECT_EQ(NumberRaisedBy([&] { (void)(Checked(big) + 1 - 1); }), 6);
    EXPECT_EQ(NumberRaisedBy([&] { (void)(Checked(-32767) - 2); }), 6);
    EXPECT_EQ(NumberRaisedBy([&] { (void)(Checked(256) * 128); }), 6);
    EXPECT_EQ(NumberRaisedBy([&] { (void)(Checked(-32767 - 1) / -1); }), 6);
    EXPECT_EQ(NumberRaisedBy([&] { (void)(Checked(1) / 0); }), 11);
    EXPECT_EQ(NumberRaisedBy([&] { (void)(Checked(1) % 0); }), 11);
}

TEST(Rounding, HalvesGoToTheEvenNeighbour) {
    const struct {
        Double value;
        Integer rounded;
    } rows[] = {{12.5, 12},  {13.5, 14},           {-0.5, 0},
                {-1.5, -2},  {-2.5, -2},           {0.49, 0},
                {-0.51, -1}, {32767.5 - 1, 32766}, {-32768.5, -32768}};
    for (const auto& row : rows)
        EXPECT_EQ(ToInteger(row.value), row.rounded) << row.value;
}

TEST(Rounding, FailsOutsideTheTypeAndOnNoNumber) {
    for (const Double value : {32767.5, -32769.0, 1e300, std::nan("")})
        EXPECT_EQ(NumberRaisedBy([&] { ToInteger(value); }), 6) << value;
    EXPECT_EQ(NumberRaisedBy([&] { ToLong(2147483647.5); }), 6);
    EXPECT_EQ(ToLong(-2147483648.0), -2147483647 - 1);
    for (const Double value : {3.5e38, -1e39, HUGE_VAL, std::nan("")})
        EXPECT_EQ(NumberRaisedBy([&] { ToSingle(value); }), 6) << value;
    EXPECT_EQ(ToSingle(-0.1), -0.1F);
}

} // namespace
} // namespace zorvane
