#include "welldata/WellDataCsv.h"

#include "apps/LoadedPlate.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

TEST(WellDataCsv, ReadsBackWhatItWrites) {
    LoadedPlate host;
    Plate& plate = host.plate;
    const WellNames names(plate);
    plate.Text(7, "Tip, \"long\"\nand\r\ntwo lines");
    plate.ErrorCode(7, -3);
    plate.IsDefined(7, true);
    plate.SetVolume(7, 0.1F);
    plate.WellAnnotation(7, "#1");
    plate.IsDefined(8, true);
    plate.ErrorCode(9, 5); // an error code of a well that is not defined
    plate.Text(47, "last");
    const String written = WellDataText(plate, names);

    LoadedPlate other;
    ApplyWellData(other.plate, ParseWellData(written, names));
    EXPECT_EQ(WellDataText(other.plate, names), written);
    EXPECT_EQ(other.plate.Elements().WellBottom[7].fill, plate.ErrorWellColor);
    EXPECT_EQ(other.plate.Elements().WellBottom[8].fill, plate.DefinedWellColor);
}

TEST(WellDataCsv, WritesOneLineAWell) {
    LoadedPlate host(TwoSubWells(1, 2));
    host.plate.IsDefined(1, true);
    host.plate.SetVolume(2, 2.5F);
    EXPECT_EQ(WellDataText(host.plate, WellNames(host.plate)),
              "well,sub-well,defined,volume,text,error,annotation\r\n"
              "A1,Drop1,no,,,0,\r\n"
              "A2,Drop1,yes,0,,0,\r\n"
              "A1,Reservoir,no,2.5,,0,\r\n"
              "A2,Reservoir,no,,,0,\r\n");
}

TEST(WellNames, TellPositionsApartWhoseLegendsAreAlike) {
    LoadedPlate numbers(TwoSubWells(12, 12, "1", "1")); // "1" + "11" and "11" + "1"
    const WellNames numbered(numbers.plate);
    EXPECT_EQ(numbered.Position(10), "R1C11");
    EXPECT_EQ(numbered.FindPosition("r1c11"), 10);

    LoadedPlate letters(TwoSubWells(40, 2)); // rows up to "h" after "Z"
    const WellNames cased(letters.plate);
    EXPECT_EQ(cased.FindPosition("A1"), 0);
    EXPECT_EQ(cased.FindPosition("a1"), 64);
    EXPECT_EQ(cased.Full(80 + 64), "a1, Reservoir");
}

} // namespace
} // namespace zorvane
