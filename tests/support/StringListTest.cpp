#include "support/StringList.h"

#include "Test.h"

namespace zorvane {
namespace {

String Content(const StringList& list) {
    String content;
    for (const auto& entry : list)
        content += entry->Text + ";";
    return content;
}

TEST(StringList, DropsTheOldestTextsBeyondItsCap) {
    const struct {
        std::vector<const char*> added;
        const char* content;
        Long size;
    } rows[] = {{{"aaaa", "bbbb"}, "aaaa;bbbb;", 8},
                {{"aaaa", "bbbb", "cc"}, "aaaa;bbbb;cc;", 10},
                {{"aaaa", "bbbb", "cccc"}, "bbbb;cccc;", 8},
                {{"a", "b", "c", "ddddddddd"}, "c;ddddddddd;", 10},
                {{"a", "bbbbbbbbbbbbbbbbbbbb"}, "a;bbbbbbbbbbbbbbbbbbbb;", 21},
                {{"bbbbbbbbbbbbbbbbbbbb", "a"}, "bbbbbbbbbbbbbbbbbbbb;a;", 21},
                {{"äöüß", "\xFF\xFE\xFD", "ccc"}, "äöüß;\xFF\xFE\xFD;ccc;", 10}};
    for (const auto& row : rows) {
        StringList list;
        list.MaxSize = 10;
        for (const char* const text : row.added)
            EXPECT_EQ(list.Add(text)->Text, text);
        EXPECT_EQ(Content(list), row.content);
        EXPECT_EQ(list.Size, row.size) << row.content;
        EXPECT_TRUE(list.Changed);
    }
}

TEST(StringList, LeavesItsSizeToAddingAndClearing) {
    StringList list;
    list.Clear();
    EXPECT_FALSE(list.Changed);
    list.Add("aa");
    list.Add("bb");
    for (const auto& change : std::initializer_list<std::function<void()>>{
             [&] { list.Item(2, "longer"); }, [&] { list.Remove(1); }}) {
        list.Changed = false;
        change();
        EXPECT_TRUE(list.Changed);
        EXPECT_EQ(list.Size, 4);
    }
    EXPECT_EQ(list.Item(1), "longer");
    for (const Long outside : {-1, 0, 2}) {
        EXPECT_EQ(NumberRaisedBy([&] { list.Item(outside); }), 9);
        EXPECT_EQ(NumberRaisedBy([&] { list.Item(outside, "x"); }), 9);
        EXPECT_EQ(NumberRaisedBy([&] { list.Remove(outside); }), 9);
    }
    list.Changed = false;
    list.Clear();
    EXPECT_TRUE(list.Changed);
    EXPECT_EQ(list.Size, 0);
    list.Size = 2147483647;
    EXPECT_EQ(NumberRaisedBy([&] { list.Add("x"); }), 6);
}

TEST(StringList, SavesItselfOrShowsThatItCannot) {
    TestProcess process;
    StringList list;
    list.Add("a \"b\"");
    list.Add("");
    const TempFile file("what was there before, and longer");
    list.SaveToFile(file.Path());
    EXPECT_EQ(file.Bytes(), "\"a \"b\"\"\r\n\"\"\r\n");

    const String nowhere = testing::TempDir() + "missing/list.txt";
    process.messages.Expect("Problem saving \r\n<" + nowhere + ">");
    list.SaveToFile(nowhere);
    EXPECT_EQ(process.messages.shown.at(0).title, "File not saved");
}

} // namespace
} // namespace zorvane
