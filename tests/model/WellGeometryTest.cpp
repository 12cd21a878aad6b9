#include "model/cmPlate.h"

#include "Raised.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

cmPlate Read(const String& text) {
    cmPlate plate;
    plate.SetFromText(text);
    return plate;
}

TEST(WellGeometry, ShiftsAndRecords) {
    cmPlate plate = Read("PLATE P\r\nWELL A\r\nDEPTH 8\r\nWELL B");
    plate.ShiftWells(1, 2, 0.5F);
    EXPECT_EQ(plate.CompoundWell()->Item(1)->Depth(), 7.5F);
    EXPECT_EQ(plate.GetProperty("A.XOFFSET"), "1.00");
    EXPECT_EQ(plate.GetProperty("A.YOFFSET"), "2.00");
    EXPECT_EQ(plate.GetProperty("A.DEPTH"), "7.50");
    EXPECT_EQ(plate.GetProperty("B.DEPTH"), "-0.50");
    EXPECT_EQ(plate.SubWell(), "B");
}

TEST(WellGeometry, TurnsByAQuarter) {
    cmPlate plate =
        Read("PLATE P\r\nROWS 8\r\nCOLS 12\r\nXPITCH 9\r\nYPITCH 9\r\nXOVERALL 127.76\r\n"
             "YOVERALL 85.48\r\nROWLABEL A\r\nCOLLABEL 1\r\nWELL D\r\nXOFFSET -2.2\r\n"
             "YOFFSET 2\r\nRIMHEIGHT 0.7\r\nRIMWIDTH 0.5\r\nRIMCENTERX 0.3\r\n"
             "WELLSIZEX 3");
    plate.Rotate(90);
    EXPECT_EQ(plate.Rows(), 8);
    plate.Rotate90();
    EXPECT_EQ(plate.GetProperty("Rows") + "x" + plate.GetProperty("Cols"), "12x8");
    EXPECT_EQ(plate.yOverall(), 127.76F);
    EXPECT_EQ(plate.ColumnLabel(), "A");
    EXPECT_EQ(plate.RowLabel(), "12");
    EXPECT_EQ(plate.WellLegend(11, 7), "1H");
    const auto drop = plate.CompoundWell()->Item(1);
    EXPECT_EQ(drop->xOffset(), 2);
    EXPECT_FLOAT_EQ(drop->yOffset(), 30.96F);
    EXPECT_EQ(drop->RimWidth(), 0.7F);
    EXPECT_EQ(drop->RimHeight(), 0.5F);
    EXPECT_EQ(drop->RimCenterX(), 0);
    EXPECT_EQ(drop->RimCenterY(), -0.3F);
    EXPECT_EQ(drop->WellSizeX(), 3);
    EXPECT_EQ(plate.GetProperty("D.RIMHEIGHT"), "0.50");
    plate.Rotate90();
    EXPECT_EQ(plate.ColumnLabel() + plate.RowLabel(), "12H");
}

TEST(WellGeometry, TurnsStepByStep) {
    cmPlate recorded = Read("PLATE P\r\nWELL A");
    recorded.Rotate90();
    const String text = recorded.Text();
    EXPECT_LT(text.find("COLS 0"), text.find("ROWS 0")) << text;
    cmPlate plate = Read("PLATE P\r\nCOLS -32768\r\nWELL A");
    EXPECT_EQ(NumberRaisedBy([&] { plate.Rotate90(); }), 6) << "there is no row before the first";
    EXPECT_EQ(plate.SubWell(), "A") << "made current first";
}

TEST(WellGeometry, FindsEnvelopesAndCentroids) {
    const auto finds = [](const String& subWells, const char* envelope, const char* centroid) {
        const cmPlate plate = Read("PLATE P\r\nXPITCH 9\r\nYPITCH 9\r\n" + subWells);
        Coordinate low;
        Coordinate high;
        plate.WellEnvelope(2, 3, low, high);
        EXPECT_EQ(low.AsText() + high.AsText(), envelope) << subWells;
        EXPECT_EQ(plate.WellCentroid(2, 3).AsText(), centroid) << subWells;
    };
    finds("WELLDIAMETER 6\r\nRIMWIDTH 0.5", "(23.5, 14.5, 0.0)(30.5, 21.5, 0.0)",
          "(27.0, 18.0, 0.0)");
    finds("WELLDIAMETER 6\r\nRIMHEIGHT 2\r\nRIMWIDTH 0.5", "(23.5, 14.5, 0.0)(30.5, 21.5, 0.0)",
          "(27.0, 18.0, 0.0)");
    finds("WELL A\r\nWELLDIAMETER 1\r\nWELL B\r\nWELLDIAMETER 6\r\nRIMHEIGHT 2\r\n"
          "RIMWIDTH 0.5\r\nXOFFSET 1\r\nRIMCENTERX 1\r\nRIMCENTERY -1",
          "(25.5, 12.0, 0.0)(32.5, 22.0, 0.0)", "(29.0, 17.0, 0.0)");
    finds("WELL A\r\nWELLDIAMETER 2\r\nXOFFSET -4\r\nWELL B\r\nWELLDIAMETER 2\r\nXOFFSET 4",
          "(22.0, 17.0, 0.0)(32.0, 19.0, 0.0)", "(27.0, 18.0, 0.0)");
    EXPECT_EQ(NumberRaisedBy([] { cmPlate().WellCentroid(0, 0); }), 9);
}

TEST(WellGeometry, FourTurnsGiveTheSamePlate) {
    for (const char* const labels :
         {"ROWLABEL A\r\nCOLLABEL 1", "ROWLABEL 1\r\nCOLLABEL A", "ROWLABEL H\r\nCOLLABEL 12"}) {
        cmPlate plate = Read("PLATE P\r\nROWS 8\r\nCOLS 12\r\nXPITCH 9\r\nYPITCH 8\r\n"
                             "XOVERALL 128\r\nYOVERALL 85\r\nWELL D\r\nXOFFSET -2\r\n"
                             "YOFFSET 3\r\nRIMCENTERX 1\r\nRIMHEIGHT 2\r\nRIMWIDTH 1\r\n" +
                             String(labels));
        const String before = plate.AsText() + plate.WellLegend(7, 11);
        for (int turn = 0; turn < 4; ++turn)
            plate.Rotate90();
        EXPECT_EQ(plate.AsText() + plate.WellLegend(7, 11), before);
    }
}

TEST(WellGeometry, FailsOnWhatIsTooLarge) {
    cmPlate large = Read("PLATE P\r\nCOLS 32767\r\nXPITCH 3e38\r\nWELL D\r\nXOFFSET 3e38");
    EXPECT_EQ(NumberRaisedBy([&] { large.WellCentroid(0, 2); }), 6);
    EXPECT_EQ(NumberRaisedBy([&] { large.ShiftWells(3e38F, 0, 0); }), 6);
    EXPECT_EQ(large.CompoundWell()->Item(1)->xOffset(), 3e38F);
    EXPECT_EQ(NumberRaisedBy([&] { large.Rotate90(); }), 6) << "one row more than there can be";
}

} // namespace
} // namespace zorvane
