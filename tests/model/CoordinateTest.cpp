#include "model/Coordinate.h"

#include "Raised.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

TEST(Coordinate, WritesWhatIsSet) {
    Coordinate point;
    EXPECT_EQ(point.AsText(), "(Not Set)");
    point.Y(2.5F);
    EXPECT_EQ(point.AsText(), "(0.0, 2.5, 0.0)");
    point.X(1);
    point.Z(0.25F);
    EXPECT_EQ(point.AsText(), "(1.0, 2.5, 0.25)");
    point.V(7);
    EXPECT_EQ(point.AsText(), "(1.0, 2.5, 0.25, 0.25)");
    point.Clear();
    EXPECT_EQ(point.AsText(), "(Not Set)");
    EXPECT_EQ(point.Z(), 0);
}

TEST(Coordinate, ReachesComponentsByNumber) {
    Coordinate point;
    point.Component(2, 5);
    EXPECT_EQ(point.Z(), 5);
    EXPECT_TRUE(point.IsSet());
    for (const Integer index : {Integer{-1}, Integer{4}}) {
        EXPECT_EQ(NumberRaisedBy([&] { point.Component(index); }), 9) << index;
        EXPECT_EQ(NumberRaisedBy([&] { point.Component(index, 1); }), 9) << index;
    }
}

TEST(Coordinate, MeasuresAddsAndCopies) {
    Coordinate point;
    EXPECT_EQ(point.Magnitude(), 0);
    point.X(3);
    point.Y(4);
    EXPECT_EQ(point.Magnitude(), 5);
    Coordinate copy;
    copy.CopyFrom(point);
    EXPECT_EQ(copy.AsText(), "(3.0, 4.0, 0.0, 0.0)");
    EXPECT_EQ(point.Sum(copy).AsText(), "(6.0, 8.0, 0.0, 0.0)");
    EXPECT_EQ(point.AsText(), "(3.0, 4.0, 0.0, 0.0)") << "a sum sets all of the point's own flags";
}

TEST(Coordinate, FailsOnWhatIsTooLarge) {
    Coordinate point;
    point.X(3e38F);
    point.Y(3e38F);
    EXPECT_EQ(NumberRaisedBy([&] { point.Magnitude(); }), 6);
    EXPECT_EQ(NumberRaisedBy([&] { point.Sum(point); }), 6);
}

} // namespace
} // namespace zorvane
