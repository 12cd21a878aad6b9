#include "formats/labware/Labware.h"

#include "Test.h"

namespace zorvane {
namespace {

String Replaced(String text, std::string_view from, std::string_view to) {
    const std::size_t at = text.find(from);
    EXPECT_NE(at, text.npos) << from;
    return text.replace(at, from.size(), to);
}

const String kA1 = R"("A1": {"depth": 10.90, "totalLiquidVolume": 340, "shape": "circular",)"
                   R"( "diameter": 6.4, "x": 14.38, "y": 74.24, "z": 3.5})";
const String kLabware =
    R"({"schemaVersion": 2, "parameters": {"isTiprack": false, "loadName": "demo_1"},)"
    R"( "metadata": {"displayName": "Demo plate", "tags": ["two words"]}, "ordering": [["A1"]],)"
    R"( "dimensions": {"xDimension": 127.760, "yDimension": 85.48, "zDimension": 14.4},)"
    R"( "groups": [{"metadata": {"displayName": "Drop"}, "wells": []}], "wells": {)" +
    kA1 + "}}";

class Labware : public testing::Test {
  protected:
    void SetUp() override {
        if (HasLabware()) return;
        EXPECT_EQ(RaisedBy([] { ReadLabware("{}"); }).description, "this build has no JSON");
        GTEST_SKIP() << "this build has no JSON";
    }
};

TEST_F(Labware, IsReadWithItsDigitsFromTheTop) {
    const LabwareSource source = ReadLabware(kLabware);
    EXPECT_EQ(
        DefinitionText(source.plate),
        DefinitionOf({"PLATE demo_1",    "ROWS 1",          "COLS 1",          "ROWLABEL A",
                      "COLLABEL 1",      "XPITCH 127.760",  "YPITCH 85.48",    "XOVERALL 127.760",
                      "YOVERALL 85.48",  "HEIGHT 14.4",     "SHELFDEPTH -0.5", "TAGLIST two_words",
                      "WELL Drop",       "  STYLE ROUND",   "  XOFFSET 14.38", "  YOFFSET 11.24",
                      "  WELLSIZEX 6.4", "  WELLSIZEY 6.4", "  RIMWIDTH 0",    "  RIMHEIGHT 0",
                      "  DEPTH 10.90",   "  VOLUME 340"}));
    EXPECT_EQ(source.bottomOffset.Units(), 0);
    EXPECT_EQ(ReadLabware(Replaced(kLabware, R"("z": 3.5)", R"("z": 3.25)")).bottomOffset.Text(),
              "-0.25");
}

TEST_F(Labware, IsRefusedWithThePathOfTheValue) {
    const String b1 = kA1 + ", " + Replaced(kA1, "A1", "B1");
    const struct {
        const char* from;
        String to, description;
    } cases[] = {
        {R"("schemaVersion": 2)", R"("schemaVersion": 3)",
         "schemaVersion is 3; this reads labware of schema 2"},
        {R"("isTiprack": false)", R"("isTiprack": true)",
         "parameters.isTiprack is true: a rack of tips is not a plate"},
        {R"("zDimension")", R"("height")", "dimensions.zDimension is missing"},
        {R"("x": 14.38)", R"("x": "14.38")", "wells.A1.x is not a number"},
        {R"("x": 14.38)", R"("x": -1)", "wells.A1.x is not a number from 0 to 4000000"},
        {R"("x": 14.38)", R"("x": 1e300)", "wells.A1.x is not a number from 0 to 4000000"},
        {R"("x": 14.38)", R"("x": 1e999)", "number overflow parsing '1e999'"},
        {R"("circular")", R"("oval")", "wells.A1.shape is neither circular nor rectangular"},
        {R"("A1": {)", R"("a1": {)", "wells.a1 is not named as A1 is"},
        {R"([["A1"]])", R"([["A1"], ["A1"]])", "ordering[1][0] is there twice: A1"},
        {R"([["A1"]])", "[[]]", "wells.A1 is not in the ordering"},
        {R"([["A1"]])", R"([["A1", "B1"]])", "the ordering has B1, which is not among the wells"},
        {R"([["A1"]])", "7", "ordering is not an array"},
        {kA1.c_str(), "", "the ordering has A1, which is not among the wells"},
        {kA1.c_str(), kA1 + ", " + kA1, "\"A1\" is there twice"},
    };
    for (const auto& row : cases) {
        const RaisedError error =
            RaisedBy([&] { ReadLabware(Replaced(kLabware, row.from, row.to)); });
        EXPECT_EQ(error.number, 13);
        EXPECT_EQ(error.description, row.description);
    }
    EXPECT_EQ(RaisedBy([] { ReadLabware("[]"); }).description, "the text is not an object");
    EXPECT_EQ(RaisedBy([] { ReadLabware(String(100'000, '[')); }).description,
              "there are more than 32 values inside one another");
    EXPECT_EQ(RaisedBy([] { ReadLabware("{\"" + String(300, 'n') + "\": 1}"); }).description,
              "a name has more than 256 bytes");
    String many = "[0";
    for (int i = 0; i < 500'000; ++i)
        many += ",0";
    EXPECT_EQ(RaisedBy([&] { ReadLabware(many + "]"); }).description,
              "there are more than half a million values");
}

TEST_F(Labware, RefusesPlatesThatItCannotHold) {
    TestProcess process;
    const struct {
        String more, subWell, description;
    } cases[] = {
        {"", "STYLE ROUND\r\nWELLSIZEY 3\r\n",
         "a labware has no round wells of two sizes: 6 by 3 mm"},
        {"", "XOFFSET -1\r\n", "a labware cannot have a negative x, as A1 has: -1"},
        {"", "DEPTH 15\r\n",
         "a labware cannot have a negative z (the height less the depth), as A1 has: -1"},
        {"ROWLABEL a\r\n", "",
         "the position a1 has no name of a letter and a number: such names need rows labelled A, "
         "B, C and columns labelled 1, 2, 3, in either direction"},
        {"ROWS 32767\r\nCOLS 32767\r\n", "", "a plate cannot have more than 32767 wells"},
    };
    for (const auto& row : cases) {
        cmPlate plate;
        plate.SetFromText(GridText(2, 3, SubWellText("Drop", 10, 10, 6, row.subWell), row.more));
        const RaisedError error = RaisedBy([&] { LabwareText(plate, 1); });
        EXPECT_EQ(error.number, 5);
        EXPECT_EQ(error.description, row.description);
    }
}

} // namespace
} // namespace zorvane
