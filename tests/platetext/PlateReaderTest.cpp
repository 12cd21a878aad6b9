#include "model/cmPlate.h"

#include "Test.h"

#include <tuple>

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
    plate.SetFromText("PLATE P\r\n" + DefinitionOf(lines));
    return plate;
}

/// "name=value|" for each recorded property.
String PropertiesOf(const cmPlate& plate) {
    String text;
    for (const auto& pair : plate.Properties)
        text += pair->Name() + "=" + pair->Value() + "|";
    return text;
}

TEST(PlateReader, ReadsADefinitionUpToTheNextPlate) {
    Library library("; crystallisation plates\r\nPLATE Demo96 ; two-drop vapour-diffusion plate\r\n"
                    "TAGLIST hanging vapour ; tags\r\nROWS 8\r\nCOLS 12\r\nHEIGHT 14.35\r\n"
                    "ROWLABEL A\r\nCOLLABEL 1\r\nSHELFDEPTH -0.5\r\n"
                    "WELL Reservoir\r\nSTYLE SQUARE\r\nWELLSIZEX 4.0\r\nWELLSIZEY 4.0\r\n"
                    "VOLUME 100\r\nWELL Drop1\r\nSTYLE ROUND\r\nWELLDIAMETER 2.5\r\n"
                    "XOFFSET -2.2\r\nRIMWIDTH 0.5\r\nPLATE Next96\r\n");
    cmPlate plate;
    ASSERT_EQ(plate.ReadNextPlate(library.reader, "demo96"), 0);
    EXPECT_EQ(library.reader.ReadLine(), "PLATE Next96");
    EXPECT_EQ(plate.PlateName(), "Demo96");
    EXPECT_EQ(plate.WellLegend(7, 11), "H12");
    EXPECT_EQ(plate.ShelfDepth(), -0.001F);
    EXPECT_EQ(plate.Height(), 14.35F);
    EXPECT_TRUE(plate.Available());
    EXPECT_EQ(plate.Comment, "two-drop vapour-diffusion plate\r\n");
    EXPECT_EQ(plate.Tags.Count(), 2);
    ASSERT_EQ(plate.CompoundWell()->Count(), 2);
    const WellDetails& reservoir = *plate.CompoundWell()->Item("reservoir");
    EXPECT_TRUE(reservoir.Style() == 3 && reservoir.WellSizeY() == 4);
    EXPECT_EQ(reservoir.MaxVolume(), 100);
    const WellDetails& drop = *plate.CompoundWell()->Item(2);
    EXPECT_EQ(drop.WellName(), "Drop1");
    EXPECT_TRUE(drop.WellSizeX() == 2.5F && drop.xOffset() == -2.2F && drop.RimHeight() == 0.5F);
}

TEST(PlateReader, DrivesThroughALibrary) {
    const auto drive = [](const char* why, const String& text, const char* name,
                          std::initializer_list<Integer> results) {
        Library library(text);
        cmPlate plate;
        for (const Integer result : results)
            EXPECT_EQ(plate.ReadNextPlate(library.reader, name), result) << why;
    };
    drive("the end of the file completes a plate", "PLATE A\nPLATE B", "b", {1, 0, 62});
    drive("END hides what follows", "PLATE A\nEND\nPLATE B", "", {0, 6});
    drive("unknown keywords are passed over", "PLATE A\nFOO 1\nPLATE B\n", "B", {1, 0, 62});
    drive("INCLUDE completes a plate, then stops", "PLATE A\nINCLUDE x\nPLATE B", "", {0, -1, -1});
    drive("a stray line", "\n ; c\nROWS 8\nPLATE A", "A", {6, 0});
    drive("a line that fails", "PLATE A\nROWS 99999\nPLATE B", "A", {7, 1});
    drive("only comments, and a name", "; nothing\r\n", "A", {1, 62});
    drive("blanks, CR line ends", "\t Plate\tA\r  rows 2\rPLATE B\r", "A", {0, 1});
    drive("the command to the reader", "PLATE A\n ResetParsePlateLine\t\nROWS 1", "", {6});
    TextFile closed;
    EXPECT_EQ(cmPlate().ReadNextPlate(closed), 52);
}

TEST(PlateReader, AppliesNumbersLeniently) {
    const auto reads = [](std::string_view line, auto property, Single value) {
        EXPECT_EQ(Single((PlateOf({line}).*property)()), value) << line;
    };
    using Whole = Integer (cmPlate::*)() const;
    using Real = Single (cmPlate::*)() const;
    reads("Cols 12.5", Whole{&cmPlate::Cols}, 12);
    reads("Cols 13.5", Whole{&cmPlate::Cols}, 14);
    reads("rows -3mm", Whole{&cmPlate::Rows}, -3);
    reads("XPITCH +1.25e1x", Real{&cmPlate::XPitch}, 12.5F);
    reads("YPITCH .5", Real{&cmPlate::YPitch}, 0.5F);
    reads("SHELFDEPTH -0.5", Real{&cmPlate::ShelfDepth}, -0.001F);
    reads("SHELFDEPTH -0.4", Real{&cmPlate::ShelfDepth}, -0.4F);
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
    const auto keeps = [](std::string_view line, const char* comment, const char* tags) {
        const cmPlate plate = PlateOf({line});
        EXPECT_EQ(plate.Comment, comment) << line;
        EXPECT_EQ(plate.TagListText(), tags) << line;
    };
    keeps("  ;  alone ; twice ", "alone ; twice\r\n", "");
    keeps("ROWS 8 x ; ;odd ' one", "ROWS 8 : ;odd ' one\r\n", "");
    keeps("rows 8 'single", "rows 8 : single\r\n", "");
    keeps("ROWS ; 8", "", "");
    keeps("END of ; it", "END of : it\r\n", "");
    keeps("PLATE Other ; next", "next\r\n", "");
    keeps("TAG hanging drop", "", "hanging drop");
    keeps("TAG two words ; three", "TAG two : three\r\n", "two words ; three");
    keeps("TAGLIST a b ;c d", "", "a b");
    keeps("TAGLIST a b a ; it's", "", "b a");
    keeps("XYZ 1 2 ; any system", "XYZ 1 : any system\r\n", "");
}

TEST(PlateReader, TakesTheDefaultsOfItsCoordinateSystem) {
    const auto takes = [](const char* system, const char* line, Boolean available, Integer rotation,
                          Single x, Single y, Single z, const char* comment) {
        cmPlate plate;
        plate.CoordinateSystem = system;
        plate.SetFromText(DefinitionOf({"PLATE P", line}));
        EXPECT_EQ(std::tuple(plate.Available(), plate.DefaultRotation(), plate.DefaultX(),
                             plate.DefaultY(), plate.DefaultZ(), plate.Comment),
                  std::tuple(available, rotation, x, y, z, String(comment)))
            << line;
    };
    takes("", "XYZ 5 10 20", false, 0, 0, 0, 0, "");
    takes("xyz", "XYZ 5 10 20", true, 5, 5, 10, 20, "");
    takes("XYZ", "XYZ 7", true, 7, 7, 0, 0, "");
    takes("XYZ", "xyz 7", false, 0, 0, 0, 0, "");
    takes("XYZV", "XYZV 2.5 1 2 3", true, 2, 2.5F, 1, 2, "");
    takes("XYZ", "XYZ 1 2 3 ; unseen", true, 1, 1, 2, 3, "");
    takes("XYZ", "XYZ 1 2 3;seen unseen", true, 1, 1, 2, 3, "XYZ 1 : seen\r\n");
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

} // namespace
} // namespace zorvane
