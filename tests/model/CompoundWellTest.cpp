#include "model/CompoundWell.h"

#include "Raised.h"

#include <gtest/gtest.h>

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
    source.WellName("Drop");
    source.WellDiameter(6);
    source.InitialVolume(1);
    WellDetails target;
    target.InitialVolume(2);
    target.Copy(source);
    EXPECT_EQ(target.WellName(), "Drop");
    EXPECT_EQ(target.WellSizeY(), 6);
    EXPECT_EQ(target.InitialVolume(), 2);
}

TEST(CompoundWell, PlacesByIndexAndRefusesWhatDoesNotFit) {
    const struct {
        const char* before;
        const char* name;
        Integer index;
        Long error;
        const char* after;
    } rows[] = {
        {"AB", "x", 0, 0, "xAB"},  {"AB", "x", -1, 0, "ABx"}, {"AB", "x", 1, 0, "AxB"},
        {"AB", "x", 2, 0, "ABx"},  {"", "x", 5, 0, "x"},      {"AB", "x", 3, 9, "AB"},
        {"AB", "b", 0, 457, "AB"},
    };
    for (const auto& row : rows) {
        CompoundWell layout = Layout(row.before);
        const Long error = NumberRaisedBy([&] { layout.AddSubWell(Well(row.name), row.index); });
        EXPECT_EQ(error, row.error) << row.before << row.name << row.index;
        EXPECT_EQ(Names(layout), row.after) << row.before << row.name << row.index;
    }
    CompoundWell layout = Layout("A");
    EXPECT_EQ(NumberRaisedBy([&] { layout.AddSubWell(nullptr); }), 91);
    EXPECT_EQ(layout.Add(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 3, "new", "ignored")->RimCenterY(), 10);
    EXPECT_EQ(layout.Item("NEW")->MaxVolume(), 8);
    EXPECT_EQ(NumberRaisedBy([&] { layout.Remove("ignored"); }), 5);
}

TEST(CompoundWell, SwapsDifferentPositionsOnly) {
    const struct {
        Integer index1;
        Integer index2;
        Long error;
        const char* after;
    } rows[] = {
        {1, 3, 0, "CBAD"}, {3, 1, 0, "CBAD"},  {1, 2, 0, "BACD"}, {4, 3, 0, "ABDC"},
        {4, 1, 0, "DBCA"}, {2, 2, 457, "BCD"}, {1, 1, 9, "ABCD"}, {1, 5, 9, "ABCD"},
    };
    for (const auto& row : rows) {
        CompoundWell layout = Layout("ABCD");
        const Long error = NumberRaisedBy([&] { layout.Swap(row.index1, row.index2); });
        EXPECT_EQ(error, row.error) << row.index1 << row.index2;
        EXPECT_EQ(Names(layout), row.after) << row.index1 << row.index2;
    }
}

TEST(CompoundWell, SwapKeepsTheKeysOfRenamedSubWells) {
    CompoundWell layout = Layout("AB");
    layout.Item("A")->WellName("C");
    layout.Swap(1, 2);
    EXPECT_EQ(Names(layout), "BC");
    EXPECT_EQ(layout.Item("a")->WellName(), "C");
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
