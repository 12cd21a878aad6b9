#include "platecheck/LibraryCheck.h"
#include "TempFile.h"
#include "platetext/Definition.h"

#include <gtest/gtest.h>

#include <vector>

namespace zorvane {
namespace {

using Texts = std::vector<std::string_view>;

/// "line:column: severity: message" of each finding.
std::vector<String> FindingsIn(std::string_view library) {
    const TempFile file(library);
    std::vector<String> texts;
    for (const Finding& finding : CheckLibrary(file.Path())) {
        EXPECT_EQ(finding.file, file.Path());
        texts.push_back(std::to_string(finding.line) + ":" + std::to_string(finding.column) +
                        (finding.severity == Severity::Error ? ": error: " : ": warning: ") +
                        finding.message);
    }
    return texts;
}

/// A plate of 2 by 3 positions, with nothing wrong in its lines 1 to 15.
String GoodPlate(std::string_view name = "P") {
    return "PLATE " + String(name) + " ; a comment\r\n" +
           Lines({"ROWS 2", "COLS 3", "ROWLABEL A", "COLLABEL 1", "XPITCH 10", "YPITCH 10",
                  "XOVERALL 30", "YOVERALL 20", "HEIGHT 9", "TAGLIST a b ; c", "WELL W",
                  "WELLDIAMETER 4", "XOFFSET 5", "YOFFSET 5"});
}

struct Case {
    String text;
    Texts findings;
};

void ExpectFindings(const std::vector<Case>& cases) {
    for (const Case& each : cases) {
        const std::vector<String> expected(each.findings.begin(), each.findings.end());
        EXPECT_EQ(FindingsIn(each.text), expected) << each.text;
    }
}

Case After(std::initializer_list<std::string_view> lines, Texts findings) {
    return {GoodPlate() + Lines(lines), std::move(findings)};
}

TEST(LibraryCheck, ReportsWhatEndsASearchAndHowMuchItHides) {
    const String other = GoodPlate("Q");
    ExpectFindings({
        {"", {}},
        {"; only a comment", {}},
        {GoodPlate() + other, {}},
        {"\xEF\xBB\xBF; saved with a mark\r\n" + other,
         {"1:1: error: a byte order mark is read as text: the plate after it cannot be found"}},
        {"ROWS 8\r\n" + GoodPlate() + other,
         {"1:1: error: \"ROWS\" outside of a plate: the 2 plates after it cannot be found"}},
        {GoodPlate() + "END\r\n \tstray \r\n" + other,
         {"16:1: error: END ends every search of the library: the plate after it cannot be found",
          "17:3: error: stray text \"stray\" outside of a plate: the plate after it cannot be "
          "found"}},
        {GoodPlate() + "include more.dat",
         {"16:1: error: INCLUDE is not followed and ends every search of the library: any plate "
          "after it cannot be found"}},
        {GoodPlate() + "WELL w\r\nXOFFSET 9\r\n" + other,
         {"16:1: error: the plate has a sub-well \"w\" already: this plate and the plate after it "
          "cannot be found"}},
        After({"HEIGHT 1E39"}, {"16:1: warning: replaces the HEIGHT of line 10",
                                "16:1: error: \"1E39\" is too large a number: this plate and any "
                                "plate after it cannot "
                                "be found"}),
        {GoodPlate() + GoodPlate("p"),
         {"16:7: error: never found: line 1 has a plate of this name"}},
        {GoodPlate(""), {"1:8: error: \";\" is taken as the name"}},
    });
}

TEST(LibraryCheck, ReportsWhatALineDoesNotMeanToTheReader) {
    ExpectFindings({
        After({"FROB 1"},
              {"16:1: error: unknown keyword \"FROB\": the line is ignored, and in a plate "
               "handed on as text so is everything after it"}),
        After({"DEPTH"}, {"16:1: error: DEPTH needs a value"}),
        After({"DEPTH ; deep"}, {"16:7: error: DEPTH needs a value"}),
        After({"DEPTH x"}, {"16:7: error: \"x\" is not a number: it counts as 0"}),
        After(
            {"DEPTH 1,5"},
            {"16:7: error: \"1,5\" is not a number: it counts as 1; the decimal mark is a point"}),
        After({"DEPTH 2;deep"},
              {"16:7: error: \"2;deep\" is not a number: it counts as 2; a comment "
               "needs a blank before it"}),
        After({"DEPTH 1 2 ; 3"},
              {"16:9: warning: ignored: only the first word after DEPTH counts"}),
        After({"DEPTH 1", "DEPTH 2"}, {"17:1: warning: replaces the DEPTH of line 16"}),
        After({"STYLE Hexagon"},
              {"16:7: error: no style is named \"Hexagon\": the line is ignored; ROUND, CCSHELF, "
               "PILLAR and SQUARE are known"}),
        After({"TAG a ; b"}, {"16:7: warning: part of the tag: a TAG line cannot have a comment"}),
        After({"TAGLIST a 'b"},
              {"16:11: warning: taken as tags: a comment after TAGLIST begins with ;"}),
        After({"xyz 1 2 3"},
              {"16:1: warning: never used: coordinate keywords count in upper case only"}),
        After({"XYZ 40000 a"}, {"16:5: error: too large: where XYZ is the coordinate system, every "
                                "search ends here",
                                "16:11: error: \"a\" is not a number: it counts as 0"}),
        After({"MOATDEPTH any", "Xyz", "TAG"},
              {"17:1: warning: XYZ without a value", "18:1: warning: TAG without a value"}),
    });
}

TEST(LibraryCheck, ReportsPlatesThatAreHardlyMeantToBeSo) {
    const auto instead = [](std::string_view line, std::string_view replacement) {
        String plate = GoodPlate();
        return plate.replace(plate.find(line), line.size(), replacement);
    };
    ExpectFindings({
        {instead("HEIGHT 9", ""),
         {"1:7: warning: not given and kept from the plate before, if any: HEIGHT"}},
        {instead("ROWS 2", "ROWS 0"), {"2:6: error: cannot be shown: ROWS is 0"}},
        {instead("ROWS 2", "ROWS 1.5"), {"2:6: warning: 1.5 is rounded to 2"}},
        {instead("YPITCH 10", "YPITCH -1"),
         {"7:8: error: YPITCH is -1: rims are drawn wrong and a click on the plate fails"}},
        {instead("ROWS 2", "ROWS 30000"),
         {"1:7: error: too large to be shown: 90000 wells, of which 32767 can be numbered",
          "4:10: error: too large to be shown: the labels from \"A\" cannot reach 30000 places",
          "12:6: warning: the wells of W leave the plate: in the last row they end at 299997.00 "
          "mm"}},
        {instead("ROWLABEL A", "ROWLABEL B"), {}},
        {instead("COLLABEL 1", "COLLABEL 2"),
         {"5:10: warning: COLLABEL 2 counts down, to 0: only 1, A and a count up"}},
        {instead("COLLABEL 1", "COLLABEL b"),
         {"5:10: warning: COLLABEL b counts down, to `: only 1, A and a count up"}},
        {instead("WELL W", "WELL"),
         {"12:1: warning: WELL without a name begins the sub-well DEFAULT"}},
        {instead("WELL W\r\n", ""),
         {"12:1: warning: no WELL line before it: it begins a sub-well named DEFAULT"}},
        {instead("WELL W", "WELL W.1"),
         {"12:7: warning: a sub-well whose name has a full stop is "
          "lost when the plate is written"}},
        {instead("WELLDIAMETER 4", "WELLSIZEX 4"), {"12:6: warning: the wells of W have no size"}},
    });
}

TEST(LibraryCheck, ReportsWellsThatOverlapOrLeaveThePlateButNotConcentricDesigns) {
    // A second sub-well after the round one of 4 mm at (5, 5).
    const auto check = [](std::initializer_list<std::string_view> lines, Texts findings) {
        ExpectFindings({{GoodPlate() + "WELL V\r\n" + Lines(lines), std::move(findings)}});
    };
    // Inside, around, inside of the rim, side by side.
    check({"WELLDIAMETER 2", "XOFFSET 5.9", "YOFFSET 5"}, {});
    check({"STYLE SQUARE", "WELLDIAMETER 5", "XOFFSET 5", "YOFFSET 5"}, {});
    check({"WELLDIAMETER 2", "XOFFSET 6.5", "YOFFSET 5", "RIMWIDTH 2.5"}, {});
    check({"WELLDIAMETER 2", "XOFFSET 8", "YOFFSET 5"}, {});
    // A circle in the corner between square and circle touches the one only.
    check({"STYLE SQUARE", "WELLDIAMETER 2", "XOFFSET 7.5", "YOFFSET 7.5"}, {});
    check({"WELLDIAMETER 2", "XOFFSET 7.5", "YOFFSET 5"},
          {"16:6: warning: the wells of V overlap those of W by 0.50 mm"});
    check({"STYLE PILLAR", "WELLDIAMETER 2", "XOFFSET 7.5", "YOFFSET 5"},
          {"16:6: warning: the wells of V overlap those of W by 0.50 mm"});
    check({"WELLDIAMETER 2", "XOFFSET 8", "YOFFSET 5", "RIMCENTERX 4.5"},
          {"16:6: warning: the wells of V leave the plate: in the last column they end at 33.50 mm",
           "16:6: warning: the wells of V overlap those of W in the next position by 0.50 mm"});
    check({"STYLE SQUARE", "WELLSIZEX 11", "WELLSIZEY 9.9", "XOFFSET 5.5", "YOFFSET 4"},
          {"16:6: warning: the wells of V leave the plate: in the first row they begin at -0.95 mm",
           "16:6: warning: the wells of V leave the plate: in the last column they end at 31.00 mm",
           "16:6: warning: the wells of V overlap those of V in the next position by 1.00 mm"});
}

TEST(LibraryCheck, ShowsTheLineAndACaretInPrintableCharacters) {
    const auto textOf = [](std::string_view library) {
        const TempFile file(library);
        const std::vector<Finding> findings = CheckLibrary(file.Path());
        EXPECT_EQ(findings.size(), 1U);
        return FindingText(findings.at(0)).substr(file.Path().size());
    };
    EXPECT_EQ(textOf(GoodPlate() + "\tDEPTH 1,5 ; deep"),
              ":16: error: \"1,5\" is not a number: it counts as 1; the decimal mark is a point\n"
              "     DEPTH 1,5 ; deep\n"
              "           ^~~\n");
    EXPECT_EQ(textOf("a\x01\xFF\xC3\xA9 x"),
              ":1: error: stray text \"a\xEF\xBF\xBD\xEF\xBF\xBD\xC3\xA9\" outside of a plate: any "
              "plate after it cannot be found\n"
              "    a\xEF\xBF\xBD\xEF\xBF\xBD\xC3\xA9 x\n"
              "    ^~~~\n");
    const String longLine =
        textOf(GoodPlate() + String(1000, ' ') + "DEPTH " + String(100000, 'z'));
    EXPECT_NE(longLine.find("    ..." + String(54, ' ') + "DEPTH zzz"), longLine.npos) << longLine;
    EXPECT_LT(longLine.size(), 500U);
}

TEST(LibraryCheck, FindsNothingInTheSampleLibrary) {
    String report;
    for (const Finding& finding : CheckLibrary(ZORVANE_SAMPLE_LIBRARY))
        report += FindingText(finding);
    EXPECT_EQ(report, "");
}

} // namespace
} // namespace zorvane
