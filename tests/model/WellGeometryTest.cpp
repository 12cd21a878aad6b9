#include "model/DropCentre.h"
#include "model/cmPlate.h"

#include "Test.h"

namespace zorvane {
namespace {

cmPlate Read(const String& text) {
    cmPlate plate;
    plate.SetFromText(text);
    return plate;
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

TEST(WellGeometry, TheDropIsInTheMiddleOfItsRim) {
    const cmPlate plate =
        Read("PLATE P\r\nXPITCH 9\r\nYPITCH 8\r\nHEIGHT 14\r\nWELL A\r\nDEPTH 2\r\n"
             "XOFFSET 1\r\nYOFFSET 2\r\nRIMCENTERX 0.5\r\nRIMCENTERY -0.25");
    EXPECT_EQ(DropCentre(plate, *plate.CompoundWell()->Item(1), 2, 3).AsText(),
              "(28.5, 17.75, 12.0)");
}

} // namespace
} // namespace zorvane
