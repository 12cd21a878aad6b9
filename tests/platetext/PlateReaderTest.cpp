#include "TempFile.h"
#include "model/cmPlate.h"
#include "platetext/Definition.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

/// A file open for reading, made of the bytes given.
struct Library {
    explicit Library(std::string_view bytes) : file(bytes) { reader.OpenInput(file.Path()); }
    TempFile file;
    TextFile reader;
};

/// A plate read from lines after "PLATE P"; what is read is the same from a file and from a text
/// but for unknown keywords.
cmPlate PlateOf(std::initializer_list<std::string_view> lines) {
    cmPlate plate;
    plate.SetFromText("PLATE P\r\n" + Lines(lines));
    return plate;
}

String PropertiesOf(const cmPlate& plate) {
    String text;
    for (const auto& pair : plate.Properties)
        text += pair->Name() + "=" + pair->Value() + "|";
    return text;
}

String TagsOf(const cmPlate& plate) {
    String text;
    for (const auto& tag : plate.Tags)
        text += tag->Value() + "|";
    return text;
}

TEST(PlateReader, ReadsADefinitionUpToTheNextPlate) {
    Library library(DemoLibrary());
    cmPlate plate;
    ASSERT_EQ(plate.ReadNextPlate(library.reader, "demo96"), 0);
    EXPECT_EQ(library.reader.ReadLine(), "PLATE Next96");
    EXPECT_EQ(plate.PlateName(), "Demo96");
    EXPECT_EQ(plate.WellLegend(7, 11), "H12");
    EXPECT_EQ(plate.ShelfDepth(), -0.001F);
    EXPECT_EQ(plate.Height(), 14.35F);
    EXPECT_TRUE(plate.Available());
    EXPECT_EQ(plate.Comment, "two-drop vapour-diffusion plate\r\n");
    EXPECT_EQ(TagsOf(plate), "hanging|vapour|");
    ASSERT_EQ(plate.CompoundWell()->Count(), 2);
    const auto reservoir = plate.CompoundWell()->Item("reservoir");
    EXPECT_EQ(reservoir->Style(), 3);
    EXPECT_EQ(reservoir->WellSizeY(), 4);
    EXPECT_EQ(reservoir->MaxVolume(), 100);
    const auto drop = plate.CompoundWell()->Item(2);
    EXPECT_EQ(drop->WellName(), "Drop1");
    EXPECT_EQ(drop->WellSizeX(), 2.5F);
    EXPECT_EQ(drop->xOffset(), -2.2F);
    EXPECT_EQ(drop->RimHeight(), 0.5F);
}

TEST(PlateReader, DrivesThroughALibrary) {
    const struct {
        const char* why;
        String text;
        const char* name;
        std::vector<Integer> results;
    } rows[] = {
        {"the end of the file completes a plate", "PLATE A\nPLATE B", "b", {1, 0, 62}},
        {"END hides what follows", "PLATE A\nEND\nPLATE B", "", {0, 6}},
        {"unknown keywords are passed over", "PLATE A\nFOO 1\nPLATE B\n", "B", {1, 0, 62}},
        {"INCLUDE completes a plate and then stops",
         "PLATE A\nINCLUDE x\nPLATE B",
         "",
         {0, -1, -1}},
        {"a stray line", "\n ; c\nROWS 8\nPLATE A", "A", {6, 0}},
        {"a line that fails", "PLATE A\nROWS 99999\nPLATE B", "A", {7, 1}},
        {"only comments", "; nothing\r\n", "", {0, 62}},
        {"only comments, and a name", "; nothing\r\n", "A", {1, 62}},
        {"nothing", "", "A", {62}},
        {"blanks before the keyword, CR line ends",
         "\t Plate\tA\r  rows 2\rPLATE B\r",
         "A",
         {0, 1}},
        {"the command to the reader, in the file",
         "PLATE A\n ResetParsePlateLine\t\nROWS 1",
         "",
         {6}},
    };
    for (const auto& row : rows) {
        Library library(row.text);
        cmPlate plate;
        for (const Integer result : row.results)
            EXPECT_EQ(plate.ReadNextPlate(library.reader, row.name), result) << row.why;
    }
    TextFile closed;
    EXPECT_EQ(cmPlate().ReadNextPlate(closed), 52);
}

TEST(PlateReader, AppliesNumbersLeniently) {
    const struct {
        const char* line;
        Single (*value)(const cmPlate&);
        Single expected;
    } rows[] = {
        {"Cols 12.5", [](const cmPlate& p) { return Single(p.Cols()); }, 12},
        {"Cols 13.5", [](const cmPlate& p) { return Single(p.Cols()); }, 14},
        {"ROWS twelve", [](const cmPlate& p) { return Single(p.Rows()); }, 0},
        {"rows -3mm", [](const cmPlate& p) { return Single(p.Rows()); }, -3},
        {"XPITCH +1.25e1x", [](const cmPlate& p) { return p.XPitch(); }, 12.5F},
        {"YPITCH .5", [](const cmPlate& p) { return p.YPitch(); }, 0.5F},
        {"SHELFDEPTH -0.5", [](const cmPlate& p) { return p.ShelfDepth(); }, -0.001F},
        {"SHELFDEPTH -0.4", [](const cmPlate& p) { return p.ShelfDepth(); }, -0.4F},
        {"HEIGHT", [](const cmPlate& p) { return p.Height(); }, 0},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.value(PlateOf({row.line})), row.expected) << row.line;
}

TEST(PlateReader, RecordsLinesAsTheyAreWritten) {
    EXPECT_EQ(
        PropertiesOf(PlateOf({"Cols 12 ; wide", "COLS\t14\tx", "MoatDepth 1", "well Drop",
                              "DEPTH 3.5", "STYLE hexagon", "WELL", "end x"})),
        "Cols=14 x|MoatDepth=1|Drop.well=Drop|Drop.DEPTH=3.5|Drop.STYLE=hexagon|DEFAULT.WELL=|");
    EXPECT_EQ(PropertiesOf(
                  PlateOf({"ROWS 1", "TAG hanging drop ; x", "TAGLIST a b a", "WELL D", "TAG b"})),
              "D.TAGLIST=hanging drop ; x a b|TAGLIST=hanging drop ; x b a|ROWS=1|D.WELL=D|");
    EXPECT_EQ(PropertiesOf(PlateOf({"FOO 1", "ROWS 2"})), "FOO=1|") << "a text ends there";
    EXPECT_EQ(PropertiesOf(PlateOf({"ROWS 40000", "COLS 2"})), "") << "a text ends there";
    EXPECT_EQ(PropertiesOf(PlateOf({"WELL a", "WELL A", "DEPTH 1"})), "a.WELL=a|");
}

TEST(PlateReader, KeepsCommentsAndTags) {
    const struct {
        const char* line;
        const char* comment;
        const char* tags;
    } rows[] = {
        {"  ;  alone ; twice ", "alone ; twice\r\n", ""},
        {";", "\r\n", ""},
        {"ROWS 8 x ; ;odd ' one", "ROWS 8 : ;odd ' one\r\n", ""},
        {"rows 8 'single", "rows 8 : single\r\n", ""},
        {"ROWS ; 8", "", ""},
        {"ROWS 8;9", "", ""},
        {"END of ; it", "END of : it\r\n", ""},
        {"PLATE Other ; next", "next\r\n", ""},
        {"TAG hanging drop", "", "hanging drop|"},
        {"TAG two words ; three", "TAG two : three\r\n", "two words ; three|"},
        {"TAGLIST a b ;c d", "", "a|b|"},
        {"TAGLIST a b a ; it's", "", "b|a|"},
        {"XYZ 1 2 ; any system", "XYZ 1 : any system\r\n", ""},
    };
    for (const auto& row : rows) {
        const cmPlate plate = PlateOf({row.line});
        EXPECT_EQ(plate.Comment, row.comment) << row.line;
        EXPECT_EQ(TagsOf(plate), row.tags) << row.line;
    }
}

TEST(PlateReader, TakesTheDefaultsOfItsCoordinateSystem) {
    const struct {
        const char* system;
        const char* line;
        Boolean available;
        Integer rotation;
        Single x, y, z;
        const char* comment;
    } rows[] = {
        {"", "XYZ 5 10 20", false, 0, 0, 0, 0, ""},
        {"xyz", "XYZ 5 10 20", true, 5, 5, 10, 20, ""},
        {"XYZ", "XYZ 7", true, 7, 7, 0, 0, ""},
        {"XYZ", "xyz 7", false, 0, 0, 0, 0, ""},
        {"XYZ", "XYZV 7", false, 0, 0, 0, 0, ""},
        {"XYZV", "XYZV 2.5 1 2 3", true, 2, 2.5F, 1, 2, ""},
        {"XYZ", "XYZ 1 2 3 ; unseen", true, 1, 1, 2, 3, ""},
        {"XYZ", "XYZ 1 2 3;seen unseen", true, 1, 1, 2, 3, "XYZ 1 : seen\r\n"},
    };
    for (const auto& row : rows) {
        cmPlate plate;
        plate.CoordinateSystem = row.system;
        plate.SetFromText(Lines({"PLATE P", row.line}));
        EXPECT_EQ(plate.Available(), row.available) << row.line;
        EXPECT_EQ(plate.DefaultRotation(), row.rotation) << row.line;
        EXPECT_EQ(plate.DefaultX(), row.x) << row.line;
        EXPECT_EQ(plate.DefaultY(), row.y) << row.line;
        EXPECT_EQ(plate.DefaultZ(), row.z) << row.line;
        EXPECT_EQ(plate.Comment, row.comment) << row.line;
    }
}

TEST(PlateReader, MakesADefaultSubWellAndItsRims) {
    const cmPlate plate = PlateOf({"RIMWIDTH 0.8", "WELL B", "RIMHEIGHT 1", "RIMWIDTH 0.8"});
    const auto made = plate.CompoundWell()->Item("default");
    EXPECT_EQ(made->RimWidth(), 0.8F);
    EXPECT_EQ(made->RimHeight(), 0.8F);
    EXPECT_EQ(plate.CompoundWell()->Item("B")->RimWidth(), 0.8F);
    EXPECT_EQ(plate.CompoundWell()->Item("B")->RimHeight(), 1);
    EXPECT_EQ(PropertiesOf(plate), "RIMWIDTH=0.8|B.WELL=B|B.RIMHEIGHT=1|B.RIMWIDTH=0.8|");
}

TEST(PlateReader, KeepsWhatAPlateDoesNotMention) {
    cmPlate plate;
    plate.SetFromText(Lines({"PLATE A", "ROWS 8", "ROWLABEL H", "TAG t", "WELL W", "DEPTH 1"}));
    plate.Status(5);
    plate.SetFromText("PLATE B\r\nCOLS 2");
    EXPECT_EQ(plate.Rows(), 8);
    EXPECT_EQ(plate.Cols(), 2);
    EXPECT_EQ(plate.Status(), 0);
    EXPECT_EQ(plate.Tags.Count(), 0);
    EXPECT_EQ(plate.CompoundWell()->Count(), 0);
    EXPECT_EQ(plate.GetProperty("w.depth"), "1");
    EXPECT_EQ(plate.RowLegend(1), "@") << "a new label, the old direction";
}

} // namespace
} // namespace zorvane
