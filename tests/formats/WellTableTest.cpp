#include "formats/wells/WellTable.h"

#include "Test.h"

namespace zorvane {
namespace {

const String kHead = "plate,length,width,height,well,x,y,depth,size-x\n";

String Definition(const String& csv) { return DefinitionText(ReadWellTable(csv).at(0)); }

TEST(WellTable, WritesTheDigitsOfTheFile) {
    EXPECT_EQ(
        Definition("Size-X,plate,LENGTH,width,height,well,x,y,z,volume\n"
                   "6.40,P,127.760,85.48,14.4,B1,14.380,20.240,3.5,1e2\n"
                   "6.4,P,127.76,85.48,14.4,a01,14.38,11.24,3.50,100\n"),
        DefinitionOf({"PLATE P",          "ROWS 2",          "COLS 1",          "ROWLABEL A",
                      "COLLABEL 1",       "XPITCH 127.760",  "YPITCH 9",        "XOVERALL 127.760",
                      "YOVERALL 85.48",   "HEIGHT 14.4",     "SHELFDEPTH -0.5", "WELL Well",
                      "  STYLE ROUND",    "  XOFFSET 14.38", "  YOFFSET 11.24", "  WELLSIZEX 6.40",
                      "  WELLSIZEY 6.40", "  RIMWIDTH 0",    "  RIMHEIGHT 0",   "  DEPTH 10.9",
                      "  VOLUME 1e2"}));
}

TEST(WellTable, RowsAndColumnsCanCountDown) {
    const String text = Definition(kHead + "P,9,9,9,A1,8,8,1,1\nP,9,9,9,A2,2,8,1,1\n"
                                           "P,9,9,9,B1,8,4,1,1\nP,9,9,9,B2,2,4,1,1\n");
    for (const char* line :
         {"ROWLABEL B", "COLLABEL 2", "XPITCH 6", "YPITCH 4", "XOFFSET 2", "YOFFSET 4"})
        EXPECT_NE(text.find(line), text.npos) << line << " is not in\n" << text;
}

TEST(WellTable, SaysWhichWellIsIrregularAndWhy) {
    const struct {
        const char *lines, *description;
    } cases[] = {
        {"P,9,9,9,A1,1,1,1,1\nP,9,9,9,A2,3,1,1,1\nP,9,9,9,A3,5.0005,1,1,1",
         "the grid is irregular: A3 lies 5.0005 mm from the left, and even pitches have it at 5"},
        {"P,9,9,9,A1,1,1,1,1\nP,9,9,9,A2,3,1.5,1,1",
         "the grid is irregular: A2 lies 1.5 mm from the top, and even pitches have it at 1"},
        {"P,9,9,9,A1,1,1,1,1\nP,9,9,9,A3,3,1,1,1", "the grid is irregular: it has no well A2"},
        {"P,9,9,9,A1,1,1,1,1\nP,9,9,9,Z32767,3,1,1,1", "the grid is irregular: it has no well A2"},
        {"P,9,9,9,A1,1,1,1,1\nP,9,9,9,A01,3,1,1,1", "the well A1 is there twice"},
        {"P,9,9,9,A1,1,1,1,1\nP,9,9,9,A2,1,1,1,1",
         "the grid is irregular: A1 and A2 lie above one another"},
        {"P,9,9,9,A1,1,1,1,1\nP,9,9,9,A2,3,1,2,1",
         "the wells differ: the depth of A1 is 1 and that of A2 2"},
        {"P,9,9,9,B1,1,1,1,1\nP,9,9,9,C1,1,3,1,1",
         "rows that begin with B and count up cannot be labelled: they must begin with A"},
        {"P Q,9,9,9,A1,1,1,1,1", "the name of a plate must be one word and is \"P Q\""},
        {";,9,9,9,A1,1,1,1,1", "the name of a plate must be one word and is \";\""},
    };
    for (const auto& row : cases) {
        const RaisedError error = RaisedBy([&] { Definition(kHead + row.lines); });
        EXPECT_EQ(error.number, 13) << row.lines;
        EXPECT_EQ(error.description, row.description);
    }
}

TEST(WellTable, SaysWhereAFileIsWrong) {
    const struct {
        String csv;
        const char* description;
    } cases[] = {
        {"", "line 1, column 1: the file is empty"},
        {kHead, "line 1, column 1: there are no wells below the names of the columns"},
        {"plate,length,width,height,well,x,y,size-x\n",
         "line 1, column 1: no column is named \"depth\""},
        {kHead + "P,9,9,9,A1,nan,1,1,1",
         "line 2, column 6 (x): \"nan\" is not a number up to 4000000"},
        {kHead + "P,9,9,9,1A,1,1,1,1", "line 2, column 5 (well): \"1A\" is no well, as A1 is"},
        {kHead + "P,9,9,9,A1,1,1,1,1\nP,9,9,8,A2,3,1,1,1",
         "line 3, column 4 (height): 8 was 9 for this plate before"},
        {"plate,length,width,height,well,x,y,depth,z,size-x\nP,9,9,9,A1,1,1,4,3,1",
         "line 2, column 9 (z): 3 is not the height less the depth, 5"},
        {"plate,length,width,height,well,x,y,depth,style,size-x\nP,9,9,9,A1,1,1,4,oval,1",
         "line 2, column 9 (style): \"OVAL\" is none of ROUND, CCSHELF, PILLAR and SQUARE"},
    };
    for (const auto& row : cases)
        EXPECT_EQ(RaisedBy([&] { ReadWellTable(row.csv); }).description, row.description);
}

TEST(WellTable, SubWellsShareTheGrid) {
    const String head = "plate,length,width,height,sub-well,well,x,y,depth,size-x\n";
    const String first = "P,9,9,9,a,A1,1,1,1,1\nP,9,9,9,a,A2,3,1,1,1\n";
    const struct {
        String second;
        const char* description;
    } cases[] = {
        {"P,9,9,9,b,A1,2,2,1,1\nP,9,9,9,b,A2,4,2,1,1\n", ""},
        {"P,9,9,9,b,A1,2,2,1,1\nP,9,9,9,b,A2,5,2,1,1\n",
         "the grid is irregular: A2 lies 5 mm from the left, and even pitches have it at 4"},
        {"P,9,9,9,b,A1,2,2,1,1\n", "the sub-well b is not at the same positions as the first one"},
        {"P,9,9,9,A,A1,2,2,1,1\nP,9,9,9,A,A2,4,2,1,1\n", "two sub-wells are named A"},
    };
    for (const auto& row : cases) {
        const auto error = RaisedBy([&] { Definition(head + first + row.second); });
        EXPECT_EQ(error.description, row.description);
    }
}

} // namespace
} // namespace zorvane
