#include "TempFile.h"
#include "model/cmPlate.h"
#include "platetext/Definition.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

TEST(PlateWriter, ReplaysWhatWasRead) {
    cmPlate plate;
    plate.SetFromText(DemoLibrary());
    EXPECT_EQ(plate.Text(), Lines({"Plate Demo96",
                                   "; two-drop vapour-diffusion plate",
                                   "    TAGLIST hanging vapour",
                                   "    ROWS 8",
                                   "    COLS 12",
                                   "    ROWLABEL A",
                                   "    COLLABEL 1",
                                   "    XPITCH 9.000",
                                   "    YPITCH 9.000",
                                   "    XOVERALL 127.76",
                                   "    YOVERALL 85.48",
                                   "    HEIGHT 14.35",
                                   "    SHELFDEPTH -0.5",
                                   "",
                                   "    Well Reservoir",
                                   "      STYLE SQUARE",
                                   "      WELLSIZEX 4.0",
                                   "      WELLSIZEY 4.0",
                                   "      DEPTH 8.0",
                                   "      VOLUME 100",
                                   "",
                                   "    Well Drop1",
                                   "      STYLE ROUND",
                                   "      WELLDIAMETER 2.5",
                                   "      XOFFSET -2.2",
                                   "      YOFFSET 2.0",
                                   "      RIMWIDTH 0.5"}));
    plate.Text("PLATE Other");
    EXPECT_EQ(plate.PlateName(), "Demo96");
}

TEST(PlateWriter, WritesTheValues) {
    cmPlate plate;
    plate.SetFromText(DemoLibrary());
    plate.CompoundWell()->Remove("Reservoir");
    plate.Comment += "an unfinished line";
    EXPECT_EQ(plate.AsText(), Lines({"Plate Demo96",
                                     "; two-drop vapour-diffusion plate",
                                     "    TAGLIST hanging vapour",
                                     "    Cols 12",
                                     "    Rows 8",
                                     "    ColLabel 1",
                                     "    RowLabel A",
                                     "    Xpitch 9.000",
                                     "    Ypitch 9.000",
                                     "    Xoverall 127.76",
                                     "    Yoverall 85.48",
                                     "    Height 14.35",
                                     "    ShelfDepth -0.001",
                                     "",
                                     "    Well Drop1",
                                     "      Style ROUND",
                                     "      Xoffset -2.20",
                                     "      Yoffset 2.00",
                                     "      Depth 0.00",
                                     "      WellSizeX 2.50",
                                     "      WellSizeY 2.50",
                                     "      RimHeight 0.50",
                                     "      RimWidth 0.50",
                                     "      RimCenterX 0.00",
                                     "      RimCenterY 0.00",
                                     "      Volume 0.00",
                                     ""}));
}

TEST(PlateWriter, WritesToAFileAndEndsWithAnEmptyLine) {
    const TempFile library;
    cmPlate plate;
    plate.PlateName("P");
    plate.Comment = "kept\r\ndropped";
    plate.SetProperty("A.well", "B");
    TextFile file;
    file.OpenOutput(library.Path());
    EXPECT_EQ(plate.WritePlate(file), 0);
    file.Close();
    EXPECT_EQ(library.Bytes(), "Plate P\r\n; kept\r\n\r\n    Well B\r\n\r\n");
}

TEST(PlateWriter, NamesTheStyles) {
    String names;
    for (const Long style : {-1, 0, 1, 2, 3, 4})
        names += cmPlate::StyleText(style) + ",";
    EXPECT_EQ(names, ",ROUND,CCSHELF,PILLAR,SQUARE,,");
}

TEST(PlateWriter, SampleLibraryComesBackTheSame) {
    TextFile library;
    library.OpenInput(ZORVANE_SAMPLE_LIBRARY);
    int plates = 0;
    for (; !library.AtEnd(); ++plates) {
        cmPlate read;
        ASSERT_EQ(read.ReadNextPlate(library), 0);
        cmPlate again;
        again.SetFromText(read.Text());
        EXPECT_EQ(again.Text(), read.Text());
        EXPECT_EQ(again.AsText(), read.AsText());
        cmPlate fromValues;
        fromValues.SetFromText(read.AsText());
        EXPECT_EQ(fromValues.AsText(), read.AsText()) << "no value has more than two decimals";
    }
    EXPECT_GE(plates, 12);
}

} // namespace
} // namespace zorvane
