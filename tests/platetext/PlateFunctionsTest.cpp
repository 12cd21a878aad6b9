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
    const auto takes = [](const char* line, const char* word, const char* rest) {
        String text = line;
        EXPECT_EQ(NextWord(text), word) << line;
        EXPECT_EQ(text, rest) << line;
        std::string_view view = line;
        EXPECT_EQ(NextWord(view), word) << line;
        EXPECT_EQ(view, rest) << line;
    };
    takes("", "", "");
    takes(" \t", "", "");
    takes("word", "word", "");
    takes("\r\n rows 8", "rows", " 8");
    takes("a\tb c", "a", "\tb c");
    takes("a\r\nb c", "a\r\nb", " c");
    takes("a ", "a", " ");
    String text = " Rows 8";
    EXPECT_EQ(NextWordUpper(text), "ROWS");
    EXPECT_EQ(text, " 8");
}

TEST(PlateFunctions, Quotes) {
    const struct {
        const char *text, *mark, *quoted;
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
    EXPECT_EQ(Capitalize(""), "");
    EXPECT_EQ(Capitalize("a"), "A");
    EXPECT_EQ(Capitalize("dROP one"), "Drop one");
    EXPECT_EQ(Capitalize("1A"), "1a");
    EXPECT_EQ(Capitalize("\xC3\xA4RGER"), "\xC3\xA4rger");
}

TEST(PlateFunctions, ShowsAnErrorWithItsPlace) {
    TestProcess process;
    process.messages.Expect("Error number 2999\r\nNo such block");
    ShowError(RuntimeError(2999, "Zorvane::SelectBlock", "No such block"), "FillArray()");
    EXPECT_EQ(process.messages.shown.at(0).title, "Error in Zorvane::SelectBlock.FillArray()");
}

} // namespace
} // namespace zorvane
