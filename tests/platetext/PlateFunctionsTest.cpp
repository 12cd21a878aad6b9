#include "platetext/PlateFunctions.h"

#include "TestProcess.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

TEST(PlateFunctions, TakesBlanksOff) {
    const String text = " \t\r\n a\tb\r\nc \n";
    EXPECT_EQ(TrimLeadingBlanks(text), "a\tb\r\nc \n");
    EXPECT_EQ(TrimTrailingBlanks(text), " \t\r\n a\tb\r\nc");
    EXPECT_EQ(TrimBlanks(text), "a\tb\r\nc");
    EXPECT_EQ(BlankControlChars(text), "     a b  c  ");
    EXPECT_EQ(TrimBlanks(" \t "), "");
}

TEST(PlateFunctions, TakesWordsOneByOne) {
    const struct {
        const char* text;
        const char* word;
        const char* rest;
    } rows[] = {{"", "", ""},
                {" \t", "", ""},
                {"word", "word", ""},
                {"\r\n rows 8", "rows", " 8"},
                {"a\tb c", "a", "\tb c"},
                {"a\r\nb c", "a\r\nb", " c"},
                {"a ", "a", " "}};
    for (const auto& row : rows) {
        String text = row.text;
        EXPECT_EQ(NextWord(text), row.word) << row.text;
        EXPECT_EQ(text, row.rest) << row.text;
        std::string_view view = row.text;
        EXPECT_EQ(NextWord(view), row.word) << row.text;
        EXPECT_EQ(view, row.rest) << row.text;
    }
    String text = " Rows 8";
    EXPECT_EQ(NextWordUpper(text), "ROWS");
    EXPECT_EQ(text, " 8");
}

TEST(PlateFunctions, Quotes) {
    const struct {
        const char* text;
        const char* mark;
        const char* quoted;
    } rows[] = {{"a", "(", "(a)"},       {"a", "<", "<a>"},
                {"a", "[", "[a]"},       {"a", "{", "{a}"},
                {"a)(b", "(", "(a)(b)"}, {"a", ")", ")a)"},
                {"", "\"", "\"\""},      {"a\"b", "\"", "\"a\"\"b\""},
                {"''", "'", "''''''"},   {"a--b", "--", "--a----b--"},
                {"a", "", "a"}};
    for (const auto& row : rows)
        EXPECT_EQ(QuoteText(row.text, row.mark), row.quoted) << row.text << " in " << row.mark;
}

TEST(PlateFunctions, CapitalizesTheFirstLetter) {
    const struct {
        const char* text;
        const char* capitalized;
    } rows[] = {{"", ""},
                {"a", "A"},
                {"dROP one", "Drop one"},
                {"1A", "1a"},
                {"\xC3\xA4RGER", "\xC3\xA4rger"}};
    for (const auto& row : rows)
        EXPECT_EQ(Capitalize(row.text), row.capitalized) << row.text;
}

TEST(PlateFunctions, ShowsAnErrorWithItsPlace) {
    TestProcess process;
    process.messages.Expect("Error number 2999\r\nNo such block");
    ShowError(RuntimeError(2999, "Zorvane::SelectBlock", "No such block"), "FillArray()");
    EXPECT_EQ(process.messages.shown.at(0).title, "Error in Zorvane::SelectBlock.FillArray()");
}

} // namespace
} // namespace zorvane
