#include "welldata/WellDataCsv.h"

#include "apps/LoadedPlate.h"
#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

String FailureOf(const String& csv, const WellNames& names) {
    try {
        ParseWellData(csv, names);
    } catch (const RuntimeError& error) {
        return error.Description();
    }
    return "no failure";
}

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
    EXPECT_EQ(other.plate.Text(7), plate.Text(7));
    EXPECT_EQ(other.plate.Elements().WellBottom[7].fill, plate.ErrorWellColor);
    EXPECT_EQ(other.plate.Elements().WellBottom[8].fill, plate.DefinedWellColor);
    EXPECT_EQ(other.plate.ErrorCode(9), 5);
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

TEST(WellDataCsv, ReadsTheColumnsThereAreInAnyOrder) {
    LoadedPlate host;
    Plate& plate = host.plate;
    plate.Text(12, "kept");
    ApplyWellData(plate, ParseWellData("\xEF\xBB\xBFVolume, WELL ,Sub-Well\r\n"
                                       "\r\n"
                                       " 1.5e1 ,c1,\n"
                                       "7,A2,RESERVOIR\r"
                                       "8,B1,drop1",
                                       WellNames(plate)));
    EXPECT_EQ(plate.GetVolume(12), 15);
    EXPECT_EQ(plate.GetVolume(25), 7);
    EXPECT_EQ(plate.GetVolume(6), 8);
    EXPECT_EQ(plate.Text(12), "kept");
    EXPECT_FALSE(plate.IsDefined(12));
}

TEST(WellDataCsv, NamesTheLineAndColumnOfWhatItCannotRead) {
    LoadedPlate host;
    const WellNames names(host.plate);
    const struct {
        const char* csv;
        const char* message;
    } cases[] = {
        {"", "line 1, column 1: the file is empty"},
        {"\r\n\r\n", "line 1, column 1: the file is empty"},
        {"volume\n1\n", "line 1, column 1: no column is named \"well\""},
        {"well,ph\n", "line 1, column 2: no column is known by \"ph\"; there are well, sub-well, "
                      "defined, volume, text, error, annotation"},
        {"well,text,Text\n", "line 1, column 3 (text): the column is there twice"},
        {"well\nA1\nZ9\n", "line 3, column 1 (well): the plate has no well \"Z9\""},
        {"well,sub-well\nA1,Drop7\n",
         "line 2, column 2 (sub-well): the plate has no sub-well \"Drop7\""},
        {"well,defined\nA1,maybe\n", "line 2, column 2 (defined): \"maybe\" is neither yes nor no"},
        {"well,volume\nA1,12\nA2,1,2\n", "line 3, column 3: a field too many"},
        {"well,volume\nA1,2 uL\n", "line 2, column 2 (volume): \"2 uL\" is not a number"},
        {"well,volume\nA1,1e39\n", "line 2, column 2 (volume): 1e39 is too large"},
        {"well,volume\nA1,1e999\n", "line 2, column 2 (volume): \"1e999\" is not a number"},
        {"well,error\nA1,1.5\n",
         "line 2, column 2 (error): 1.5 is not a whole number from -32768 to 32767"},
        {"well,error\nA1,32768\n",
         "line 2, column 2 (error): 32768 is not a whole number from -32768 to 32767"},
        {"well,text,error\nA1,\"two\nlines\",0\nA2,ok\n",
         "line 4, column 3 (error): the line ends before this column"},
        {"well,text\nA1,\"open\nA2,x\n", "line 2, column 2: the quote is never closed"},
        {"well,text\nA1,\"a\"b\n", "line 2, column 2: a comma is missing behind the closing quote"},
        {"well,text\nA1,a\nB1,b\na1,c\n",
         "line 4, column 1 (well): A1, Drop1 is on line 2 already"},
    };
    for (const auto& [csv, message] : cases)
        EXPECT_EQ(FailureOf(csv, names), message) << csv;
}

TEST(WellNames, TellPositionsApartWhoseLegendsAreAlike) {
    LoadedPlate numbers(TwoSubWells(12, 12, "1", "1")); // "1" + "11" and "11" + "1"
    const WellNames numbered(numbers.plate);
    EXPECT_EQ(numbered.Position(10), "R1C11");
    EXPECT_EQ(numbered.FindPosition("r1c11"), 10);
    EXPECT_FALSE(numbered.FindPosition("111"));

    LoadedPlate letters(TwoSubWells(40, 2)); // rows up to "h" behind "Z"
    const WellNames cased(letters.plate);
    EXPECT_EQ(cased.FindPosition("A1"), 0);
    EXPECT_EQ(cased.FindPosition("a1"), 64);
    EXPECT_EQ(cased.Full(80 + 64), "a1, Reservoir");
}

} // namespace
} // namespace zorvane
