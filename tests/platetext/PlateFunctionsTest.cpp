#include "platetext/PlateFunctions.h"

#include "Test.h"

namespace zorvane {
namespace {

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
    takes("word", "word", "");
    takes("\r\n rows 8", "rows", " 8");
    takes("a\tb c", "a", "\tb c");
    takes("a\r\nb c", "a\r\nb", " c");
    String text = " Rows\t8\r\n";
    EXPECT_EQ(NextWordUpper(text), "ROWS");
    EXPECT_EQ(BlankControlChars(text), " 8  ");
    EXPECT_EQ(TrimLeadingBlanks(text) + TrimTrailingBlanks(text), "8\r\n\t8");
    EXPECT_EQ(TrimBlanks(text), "8");
}

TEST(PlateFunctions, Quotes) {
    const auto quotes = [](const char* text, const char* mark, const char* quoted) {
        EXPECT_EQ(QuoteText(text, mark), quoted) << text << " in " << mark;
    };
    quotes("a", "<", "<a>");
    quotes("a", "{", "{a}");
    quotes("a)(b", "(", "(a)(b)");
    quotes("a", ")", ")a)");
    quotes("a\"b", "\"", "\"a\"\"b\"");
    quotes("a--b", "--", "--a----b--");
    quotes("a", "", "a");
}

TEST(PlateFunctions, CapitalizesTheFirstLetter) {
    EXPECT_EQ(Capitalize(""), "");
    EXPECT_EQ(Capitalize("dROP one"), "Drop one");
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
