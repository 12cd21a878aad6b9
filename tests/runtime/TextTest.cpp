#include "runtime/Text.h"

#include "Test.h"

namespace zorvane {
namespace {

TEST(Text, CountsCodePointsAndBytesThatAreNone) {
    const struct {
        const char* text;
        Long characters;
        bool valid;
    } rows[] = {{"", 0, true},
                {"a\x7F", 2, true},
                {"\xC2\x80\xDF\xBF", 2, true},
                {"\xE0\xA0\x80\xEF\xBF\xBF", 2, true},
                {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", 2, true},
                {"\x80", 1, false},                     // continues nothing
                {"\xC1\xBF\xE0\x9F\xBF", 5, false},     // longer than need be
                {"\xF0\x8F\xBF\xBF", 4, false},         // likewise
                {"\xED\xA0\x80\xED\x9F\xBF", 4, false}, // half of a surrogate pair, then a letter
                {"\xF4\x90\x80\x80\xF5", 5, false},     // beyond the last code point
                {"\xE2\x82", 2, false},                 // cut short
                {"\xE2\x82"
                 "a",
                 3, false}};
    for (const auto& row : rows) {
        EXPECT_EQ(CharacterCount(row.text), row.characters) << testing::PrintToString(row.text);
        EXPECT_EQ(IsUtf8(row.text), row.valid) << testing::PrintToString(row.text);
        if (row.valid && *row.text != '\0') {
            EXPECT_EQ(EncodeUtf8(FirstCharacter(row.text).code),
                      String(row.text).substr(0, FirstCharacter(row.text).bytes));
        }
    }
    EXPECT_EQ(PrintableUtf8("a\t\x1F\x7F\xC2\x9F\xFFz"), "a\t\uFFFD\uFFFD\uFFFD\uFFFDz");
}

TEST(Text, HashesTextsOfAnyLengthByTheirLettersOnly) {
    for (const String& text : {String("a"), String("Drop1.XY"), String("Reservoir.WELLSIZEX")}) {
        EXPECT_EQ(HashNoCase(text), HashNoCase(UpperText(text)));
        EXPECT_NE(HashNoCase(text), HashNoCase(text + "2"));
        EXPECT_TRUE(EqualNoCase(text, LowerText(text)));
        EXPECT_FALSE(EqualNoCase(text, text + "2"));
    }
}

} // namespace
} // namespace zorvane
