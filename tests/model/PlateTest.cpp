#include "model/cmPlate.h"

#include "Test.h"

#include <tuple>

namespace zorvane {
namespace {

String PropertiesOf(const cmPlate& plate) {
    String text;
    for (const auto& pair : plate.Properties)
        text += pair->Name() + "=" + pair->Value() + "|";
    return text;
}

cmPlate PlateWith(std::initializer_list<const char*> subWells) {
    cmPlate plate;
    for (const char* name : subWells)
        plate.CompoundWell()->Add(0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, name, "", -1);
    return plate;
}

TEST(Plate, RecordsWhatIsSet) {
    cmPlate plate = PlateWith({"A"});
    plate.XPitch(9);
    plate.YPitch(4.5F);
    plate.Height(14.355F);
    plate.ShelfDepth(-0.0004F);
    plate.Rows(-3);
    plate.RowLabel("A");
    plate.ColumnLabel("12");
    plate.RowLabel("H");
    EXPECT_EQ(PropertiesOf(plate), "COLLABEL=12|XPITCH=9.000|ROWLABEL=H|YPITCH=4.500|HEIGHT=14.35|"
                                   "SHELFDEPTH=0.000|ROWS=-3|");
    plate.Properties.Clear();
    plate.SubWell("a");
    plate.Volume(12.5F);
    plate.WellDiameter(6);
    plate.WellSizeY(4);
    plate.WellSizeX(5);
    plate.Style(3);
    EXPECT_EQ(PropertiesOf(plate),
              "a.VOLUME=12.50|a.WELLSIZEX=5.00|a.WELLSIZEY=4.00|a.STYLE=SQUARE|");
    EXPECT_EQ(plate.CompoundWell()->Item(1)->MaxVolume(), 12.5F);
    EXPECT_EQ(plate.WellSizeX() - plate.WellSizeY(), 1);
    EXPECT_EQ(plate.Style(), 0) << "the plate's own";
}

TEST(Plate, ReadingARimMovesItIntoTheWidth) {
    cmPlate plate = PlateWith({"A"});
    plate.SubWell("A");
    const auto well = plate.CompoundWell()->Item(1);
    well->RimHeight(1.5F);
    well->RimCenterX(2.5F);
    well->RimCenterY(3.5F);
    EXPECT_EQ(plate.RimHeight(), 0);
    EXPECT_EQ(well->RimWidth(), 1.5F);
    EXPECT_EQ(plate.RimCenterX(), 0);
    EXPECT_EQ(well->RimWidth(), 2.5F);
    EXPECT_EQ(plate.RimCenterY(), 0);
    EXPECT_EQ(PropertiesOf(plate), "A.RIMWIDTH=3.50|");
}

TEST(Plate, FailsWithoutACurrentSubWellOrAProperty) {
    cmPlate plate = PlateWith({"A"});
    plate.SubWell("B");
    EXPECT_EQ(NumberRaisedBy([&] { plate.Depth(1); }), 5);
    EXPECT_EQ(NumberRaisedBy([&] { plate.RimHeight(); }), 5);
    EXPECT_EQ(NumberRaisedBy([&] { plate.GetProperty("DEPTH"); }), 91);
    plate.Rotate(90); // unlike Rotate90
    EXPECT_EQ(plate.Properties.Count(), 0);
    plate.CompoundWell(nullptr);
    EXPECT_EQ(plate.CompoundWell()->Count(), 0);
}

TEST(Plate, ComputesIndices) {
    cmPlate plate;
    EXPECT_EQ(NumberRaisedBy([&] { plate.IndexToRow(1); }), 11);
    EXPECT_EQ(NumberRaisedBy([&] { plate.IndexToCol(1, true); }), 11);
    plate.Rows(8);
    plate.Cols(12);
    EXPECT_EQ(std::tuple(plate.RowColToIndex(2, 5), plate.IndexToRow(29), plate.IndexToCol(29),
                         plate.TransposeIndex(29, true), plate.IndexToCol(-13)),
              std::tuple(29, 2, 5, 42, -1));
    EXPECT_EQ(std::tuple(plate.RowColToIndex(2, 5, true), plate.IndexToRow(42, true),
                         plate.IndexToCol(42, true), plate.TransposeIndex(42)),
              std::tuple(42, 2, 5, 29));
    EXPECT_EQ(NumberRaisedBy([&] { plate.RowColToIndex(2731, 0); }), 6);
}

TEST(Plate, LabelsPositions) {
    const auto labels = [](const char* row, const char* column, const char* legend) {
        cmPlate plate;
        plate.RowLabel(row);
        plate.ColumnLabel(column);
        EXPECT_EQ(plate.WellLegend(3, 12), legend) << row << column;
    };
    labels("A", "1", "D13");
    labels("H", "12", "E0");
    labels("1", "A", "4M");
    labels("\xC3\xA4", "A", "\xC3\xA1M");
    cmPlate plate;
    EXPECT_EQ(NumberRaisedBy([&] { plate.RowLegend(0); }), 5) << "no label";
    plate.RowLabel("A");
    EXPECT_EQ(plate.RowLegend(63), "\xC2\x80") << "past ASCII a letter is UTF-8";
    EXPECT_EQ(NumberRaisedBy([&] { plate.RowLegend(191); }), 5);
    EXPECT_EQ(NumberRaisedBy([&] { plate.RowLegend(32767); }), 6);
    plate.ColumnLabel("A");
    EXPECT_EQ(NumberRaisedBy([&] { plate.WellLegend(191, 32767); }), 5) << "the row comes first";
    EXPECT_EQ(NumberRaisedBy([&] { plate.WellLegend(32767, 191); }), 6) << "the row comes first";
}

TEST(Plate, CopiesThroughItsText) {
    cmPlate source;
    source.SetFromText("PLATE P\r\n;c\r\nROWS 8\r\nTAG t\r\nWELL W\r\nDEPTH 2");
    source.UserData = 7;
    cmPlate copy;
    copy.Status(3);
    copy.SetProperty("COLS", "12");
    copy.Copy(source);
    EXPECT_EQ(copy.Text(), "Plate P\r\n; c\r\n    TAGLIST t\r\n    COLS 12\r\n    ROWS 8\r\n\r\n"
                           "    Well W\r\n      DEPTH 2\r\n");
    EXPECT_EQ(copy.Cols(), 0) << "recorded earlier, not read now";
    EXPECT_EQ(copy.UserData + copy.Status(), 7);
}

} // namespace
} // namespace zorvane
