#include "TempFile.h"
#include "model/cmPlate.h"
#include "platetext/Definition.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

const String kHead = "Plate Demo96\r\n; two-drop vapour-diffusion plate\r\n"
                     "    TAGLIST hanging vapour\r\n";

TEST(PlateWriter, ReplaysWhatWasRead) {
    cmPlate plate;
    plate.SetFromText(DemoLibrary());
    EXPECT_EQ(plate.Text(), kHead + Lines({"    ROWS 8",
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
    EXPECT_EQ(plate.AsText(), kHead + Lines({"    Cols 12",
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

} // namespace
} // namespace zorvane
