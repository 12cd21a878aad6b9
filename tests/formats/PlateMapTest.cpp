#include "formats/maps/PlateMap.h"

#include "Test.h"

namespace zorvane {
namespace {

String Data(const std::vector<MappedWell>& wells) { return WellDataOf(wells, {}); }

/// "A1=x B2=y", of the parameter v.
String Wellmap(const String& toml, const String& plate = {}) {
    String wells;
    for (const MappedWell& well : ReadWellmap(toml, plate)) {
        for (const auto& [name, value] : well.parameters) {
            if (name == "v")
                wells += (wells.empty() ? "" : " ") + PositionName(well.position) + "=" + value;
        }
    }
    return wells;
}

TEST(PlateMap, AMatrixBecomesWellData) {
    EXPECT_EQ(Data(ReadMatrix(",1,02,3\nA,x,,\"y,z\"\nb, w \n", "text")),
              "well,text\r\nA1,x\r\nA3,\"y,z\"\r\nB1,w\r\n");
    EXPECT_EQ(WellDataOf(ReadMatrix("plate 7,12\nAA,5\n", "Volume"), "Drop1"),
              "well,sub-well,volume\r\n[12,Drop1,5\r\n");
    const struct {
        const char *csv, *description;
    } cases[] = {
        {"", "line 1, column 1: the file is empty"},
        {"1\n", "line 1, column 1: the first line of a matrix is ,1,2,3 and so on"},
        {"A,x\n", "line 1, column 2: \"x\" is not the number of a column: the first line of a "
                  "matrix is ,1,2,3 and so on"},
        {",1,1\n", "line 1, column 3: the column is there twice"},
        {",1\n1,x\n", "line 2, column 1: \"1\" is not the letter of a row"},
        {",1\nA,x\na,y\n", "line 3, column 1: the row is there twice"},
        {",1\nA,x,y\n", "line 2, column 3: a field too many"},
    };
    for (const auto& row : cases)
        EXPECT_EQ(RaisedBy([&] { ReadMatrix(row.csv, "text"); }).description, row.description);
    EXPECT_EQ(RaisedBy([] { Data(ReadMatrix(",1\nA,x\n", "volume")); }).description,
              "A1: the volume \"x\" is not a number");
    EXPECT_EQ(RaisedBy([] { Data(ReadMatrix(",1\nZZ,x\n", "text")); }).description,
              "no plate has a row ZZ");
}

TEST(PlateMap, ParametersBecomeColumns) {
    const std::vector<MappedWell> wells{
        {{0, 0}, {{"Defined", "yes"}, {"pH", "7"}, {"salt", "NaCl"}, {"text", "seen"}}},
        {{1, 1}, {{"salt", "KCl"}}}};
    EXPECT_EQ(Data(wells), "well,defined,text\r\nA1,yes,\"seen, pH: 7, salt: NaCl\"\r\n"
                           "B2,,salt: KCl\r\n");
    EXPECT_EQ(WellDataOf(wells, {}, {{"Text", "salt"}, {"volume", "pH"}}),
              "well,volume,text\r\nA1,7,NaCl\r\nB2,,KCl\r\n");
    EXPECT_EQ(RaisedBy([&] {
                  WellDataOf(wells, {}, {{"salt", "salt"}});
              }).description,
              "there is no column \"salt\"");
}

class WellmapFile : public testing::Test {
  protected:
    void SetUp() override {
        if (!HasWellmap()) GTEST_SKIP() << "this build has no TOML";
    }
};

TEST_F(WellmapFile, GroupsHaveTheirWells) {
    const struct {
        const char *toml, *wells;
    } cases[] = {
        {"[well.A1]\nv=1", "A1=1"},
        {"[well]\nA1.v=1.5\nb02.v=true", "A1=1.5 B2=yes"},
        {"[well.'A1,C3,...,E5']\nv=1", "A1=1 A3=1 A5=1 C1=1 C3=1 C5=1 E1=1 E3=1 E5=1"},
        {"[well.'A1,A2,...,A4']\nv=1", "A1=1 A2=1 A3=1 A4=1"},
        {"[well.'A1,D4,...,D4']\nv=1", "A1=1 A4=1 D1=1 D4=1"},
        {"[block.2x1.'A1,C3']\nv='x'", "A1=x A2=x C3=x C4=x"},
        {"[row]\nA.v=1\nB.v=2\n[col.'1,3']", "A1=1 A3=1 B1=2 B3=2"},
        {"[row.'A,C,...,E']\nv=1\n[col.2]", "A2=1 C2=1 E2=1"},
        {"[irow]\nA.v=1\nB.v=2\n[col.'1,2,...,3']", "A1=1 A2=2 A3=1 B1=2 B2=1 B3=2"},
        {"[icol]\n1.v=1\n2.v=2\n[row.'A,B']", "A1=1 A2=2 B1=2 B2=1"},
        {"[expt]\nv=2018-10-07\n[block.1x1.A1]", "A1=2018-10-07"},
        {"name='x'\n[other.table]\na.b=1\n[well.A1]\nv=1", "A1=1"},
        {"[row.A]\nv=1", ""},
    };
    for (const auto& row : cases)
        EXPECT_EQ(Wellmap(row.toml), row.wells) << row.toml;
}

TEST_F(WellmapFile, TheMoreSpecialGroupCounts) {
    const String all =
        "[well.A1]\nv='well'\n[block.2x2.A1]\nv='small'\n[block.3x2.A1]\nv='large'\n"
        "[row.A]\nv='row'\n[col.5]\nv='col'\n[irow.B]\nv='irow'\n[icol.6]\nv='icol'\n"
        "[expt]\nv='expt'\n[row.'B,C']\n[col.'4,6']";
    EXPECT_EQ(Wellmap(all), "A1=well A2=small A3=large A4=row A5=row A6=row B1=small B2=small "
                            "B3=large B4=expt B5=col B6=expt C4=expt C5=col C6=icol");
    EXPECT_EQ(Wellmap("[block.2x1.A1]\nv=1\n[block.1x2.A1]\nv=2"), "A1=2 A2=1 B1=2");
    const String plates = "[well.A1]\nv=0\n[expt]\nv=9\n[block.3x1.A1]\n[plate.X]\nv=1\n"
                          "[plate.X.block.2x1.A1]\nv=2\n[plate.Y]\n";
    EXPECT_EQ(Wellmap(plates, "X"), "A1=0 A2=2 A3=1");
    EXPECT_EQ(Wellmap(plates, "Y"), "A1=0 A2=9 A3=9");
}

TEST_F(WellmapFile, IsRefusedWithTheLine) {
    const struct {
        const char *toml, *description;
    } cases[] = {
        {"[well.A1", "line 1: "},
        {"\n[well.A0]\nv=1", "line 2: \"A0\" names no well"},
        {"[row.1]\nv=1", "line 1: \"1\" names no row"},
        {"[col.'1,3,...,6']", "line 1: \"1,3,...,6\" names no series that ends as it says"},
        {"[col.'1,...,6']", "line 1: \"1,...,6\" names no column"},
        {"[block.2by2.A1]", "line 1: \"2by2\" is no size, as 4x2 is"},
        {"[block.9999x9999.A1]", "line 1: a plate cannot have more than 32767 wells"},
        {"[well.'A1,B2,...,IV256']", "line 1: \"A1,B2,...,IV256\" names no wells of one plate"},
        {"[row]\nA=1", "line 2: A is not a group of wells"},
        {"[row.A]\nv=[1]", "line 2: v is not one value"},
        {"[row.A]\nv=nan", "line 2: v is not a finite number"},
        {"[meta]\ninclude='x.toml'", "line 2: other files are not read: include"},
        {"[plate.X]\n[plate.Y]", "the layout has several plates: choose one of X, Y"},
        {"a.b.c.d.e.f.g.h.i=1", "line 1: a key of more than eight parts"},
        {"[row.'A,B,...,ZZ']\nv=1\n[col.'1,2,...,99']",
         "a plate cannot have more than 32767 wells"},
    };
    for (const auto& row : cases) {
        const RaisedError error = RaisedBy([&] { ReadWellmap(row.toml); });
        EXPECT_EQ(error.number, 13) << row.toml;
        EXPECT_EQ(error.description.substr(0, String(row.description).size()), row.description);
    }
}

} // namespace
} // namespace zorvane
