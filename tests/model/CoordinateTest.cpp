#include "model/Coordinate.h"

#include "Test.h"

namespace zorvane {
namespace {

TEST(Coordinate, WritesWhatIsSet) {
    Coordinate point;
    EXPECT_EQ(point.AsText(), "(Not Set)");
    point.Y(2.5F);
    EXPECT_EQ(point.AsText(), "(0.0, 2.5, 0.0)");
    point.X(1);
    point.Component(2, 0.25F);
    EXPECT_EQ(point.AsText(), "(1.0, 2.5, 0.25)");
    point.V(7);
    EXPECT_EQ(point.AsText(), "(1.0, 2.5, 0.25, 0.25)");
    for (const Integer index : {Integer{-1}, Integer{4}}) {
        EXPECT_EQ(NumberRaisedBy([&] { point.Component(index); }), 9) << index;
        EXPECT_EQ(NumberRaisedBy([&] { point.Component(index, 1); }), 9) << index;
    }
    point.Clear();
    EXPECT_EQ(point.AsText(), "(Not Set)");
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

} // namespace
} // namespace zorvane
