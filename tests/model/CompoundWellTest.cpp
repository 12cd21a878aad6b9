#include "model/CompoundWell.h"

#include "Test.h"

#include <tuple>

namespace zorvane {
namespace {

std::shared_ptr<WellDetails> Well(const String& name) {
    auto well = std::make_shared<WellDetails>();
    well->WellName(name);
    return well;
}

CompoundWell Layout(std::string_view names) {
    CompoundWell layout;
    for (const char name : names)
        layout.AddSubWell(Well({name}), -1);
    return layout;
}

String Names(const CompoundWell& layout) {
    String names;
    for (const auto& each : layout)
        names += each->WellName();
    return names;
}

TEST(WellDetails, CopiesAllButTheInitialVolume) {
    WellDetails source;
    source.WellDiameter(6);
    source.InitialVolume(1);
    WellDetails target;
    target.Copy(source);
    EXPECT_EQ(target.WellSizeX() + target.WellSizeY() + target.InitialVolume(), 12);
}

TEST(CompoundWell, PlacesByIndexAndRefusesWhatDoesNotFit) {
    const auto adds = [](const char* before, const char* name, Integer index, Long error,
                         const char* after) {
        CompoundWell layout = Layout(before);
        EXPECT_EQ(NumberRaisedBy([&] { layout.AddSubWell(Well(name), index); }), error)
            << before << name << index;
        EXPECT_EQ(Names(layout), after) << before << name << index;
    };
    adds("AB", "x", 0, 0, "xAB");
    adds("AB", "x", -1, 0, "ABx");
    adds("AB", "x", 1, 0, "AxB");
    adds("", "x", 5, 0, "x");
    adds("AB", "x", 3, 9, "AB");
    adds("AB", "b", 0, 457, "AB");
    CompoundWell layout = Layout("A");
    EXPECT_EQ(NumberRaisedBy([&] { layout.AddSubWell(nullptr); }), 91);
    const auto made = layout.Add(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 3, "new", "ignored");
    EXPECT_EQ(std::tuple(made->Depth(), made->xOffset(), made->yOffset(), made->WellSizeX(),
                         made->WellSizeY(), made->RimWidth(), made->RimHeight(), made->MaxVolume(),
                         made->RimCenterX(), made->RimCenterY(), made->Style()),
              std::tuple(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 3));
    EXPECT_EQ(layout.Item("NEW"), made);
    EXPECT_EQ(NumberRaisedBy([&] { layout.Remove("ignored"); }), 5);
}

TEST(CompoundWell, SwapsDifferentPositionsOnly) {
    const auto swaps = [](Integer index1, Integer index2, Long error, const char* after) {
        CompoundWell layout = Layout("ABCD");
        EXPECT_EQ(NumberRaisedBy([&] { layout.Swap(index1, index2); }), error) << index1 << index2;
        EXPECT_EQ(Names(layout), after) << index1 << index2;
    };
    swaps(1, 3, 0, "CBAD");
    swaps(3, 1, 0, "CBAD");
    swaps(4, 3, 0, "ABDC");
    swaps(2, 2, 457, "BCD");
    swaps(1, 1, 9, "BCD");
}

TEST(CompoundWell, CopiesIntoNewSubWells) {
    CompoundWell source = Layout("AB");
    source.Item(2)->InitialVolume(4);
    source.Item(2)->Depth(3);
    CompoundWell copy = Layout("Z");
    copy.CopyFrom(source);
    EXPECT_EQ(Names(copy), "AB");
    EXPECT_EQ(copy.Item("b")->Depth(), 3);
    EXPECT_EQ(copy.Item("b")->InitialVolume(), 0);
    EXPECT_NE(copy.Item(1), source.Item(1));
}

} // namespace
} // namespace zorvane
