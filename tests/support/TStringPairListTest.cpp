#include "support/TStringPairList.h"

#include "Test.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

std::shared_ptr<TStringPair> NewPair(const String& name, const String& value = {}) {
    return std::make_shared<TStringPair>(name, value);
}

/// The list in one line: "a=1 b=2".
String Content(const TStringPairList& list) {
    String content;
    for (const auto& pair : list)
        content += (content.empty() ? "" : " ") + pair->Name() + "=" + pair->Value();
    return content;
}

class PairList : public testing::Test {
  protected:
    PairList() {
        for (const char* const name : {"a", "b", "c"})
            list.Add(NewPair(name, "1"));
        list.DataChanged = false;
    }

    TestProcess process;
    TStringPairList list;
};

TEST_F(PairList, PlacesWhatIsAdded) {
    const auto places = [&](const char* name, Integer afterIndex, const char* content) {
        TStringPairList each;
        each.Copy(list);
        const auto pair = NewPair(name, "2");
        EXPECT_EQ(each.Add(pair, afterIndex), pair);
        EXPECT_EQ(Content(each), content) << name << " after " << afterIndex;
        EXPECT_TRUE(each.DataChanged);
    };
    places("d", 0, "a=1 b=1 c=1 d=2");
    places("d", -1, "d=2 a=1 b=1 c=1");
    places("d", -9, "d=2 a=1 b=1 c=1");
    places("d", 2, "a=1 b=1 d=2 c=1");
    places("d", 3, "a=1 b=1 c=1 d=2");
    places("B", 0, "a=1 c=1 B=2");
    places("B", -1, "B=2 a=1 c=1");
    places("A", 2, "b=1 c=1 A=2");
    list.Add(*list.begin()); // a pair that it holds
    EXPECT_EQ(Content(list), "b=1 c=1 a=1");
}

TEST_F(PairList, ShowsWhyNothingWasAdded) {
    const char* const outOfRange = "Error number 9\r\nSubscript out of range";
    process.messages.Expect(outOfRange);
    EXPECT_EQ(list.Add(NewPair("d"), 5), nullptr);
    EXPECT_EQ(process.messages.shown.at(0).title, "Error in Zorvane.TStringPairList.Add()");
    process.messages.Expect("Error number 91\r\nObject variable not set");
    EXPECT_EQ(list.Add(nullptr), nullptr);
    EXPECT_EQ(Content(list), "a=1 b=1 c=1");

    // The place is chosen before the old pair goes, and is then one too far, or none at all.
    process.messages.Expect(outOfRange);
    EXPECT_EQ(list.Add(NewPair("b"), 3), nullptr);
    EXPECT_EQ(Content(list), "a=1 c=1");
    for (const Integer afterIndex : {Integer{1}, Integer{-1}}) {
        TStringPairList single;
        single.Add(NewPair("x"));
        single.DataChanged = false;
        process.messages.Expect(outOfRange);
        EXPECT_EQ(single.Add(NewPair("X"), afterIndex), nullptr);
        EXPECT_EQ(single.Count(), 0);
        EXPECT_FALSE(single.DataChanged);
    }
    EXPECT_FALSE(list.DataChanged);
}

TEST_F(PairList, LooksUpByPositionAndName) {
    EXPECT_EQ(list.Pair(Integer{2})->Name(), "b");
    EXPECT_EQ(list.Pair("C"), list.Pair(3));
    list.Pair("a")->Value("7");
    EXPECT_EQ(list.Value("A"), "7");
    for (const Boolean errors : {true, false}) {
        list.ErrorOnFail = errors;
        EXPECT_EQ(NumberRaisedBy([&] { EXPECT_EQ(list.Pair("d"), nullptr); }), errors ? 5 : 0);
        EXPECT_EQ(NumberRaisedBy([&] { EXPECT_EQ(list.Pair(0), nullptr); }), errors ? 9 : 0);
        EXPECT_EQ(NumberRaisedBy([&] { EXPECT_EQ(list.Pair(4), nullptr); }), errors ? 9 : 0);
        EXPECT_EQ(NumberRaisedBy([&] { EXPECT_EQ(list.Value("d"), "\x1B\x1B"); }), errors ? 5 : 0);
    }
}

TEST_F(PairList, CopiesPairsAndMembers) {
    list.Name = "Tags";
    list.ErrorOnFail = false;
    TStringPairList copy;
    copy.Add(NewPair("old"));
    copy.Copy(list);
    EXPECT_EQ(Content(copy), Content(list));
    EXPECT_NE(copy.Pair(1), list.Pair(1));
    EXPECT_EQ(copy.Name, "Tags");
    EXPECT_FALSE(copy.ErrorOnFail);
    EXPECT_FALSE(copy.DataChanged);
}

TEST_F(PairList, ListsItselfAsText) {
    TStringPairList other;
    EXPECT_EQ(other.TextTable(), "");
    EXPECT_EQ(NumberRaisedBy([&] { other.VariableNames(); }), 9);
    other.Add(NewPair("X y", "a\"b"));
    other.Add(NewPair("Z"));
    EXPECT_EQ(other.TextTable(), "X y\t\"a\"\"b\"\r\nZ\t\"\"\r\n");
    EXPECT_EQ(other.VariableNames(), (std::vector<String>{"X y", "Z"}));
}

} // namespace
} // namespace zorvane
