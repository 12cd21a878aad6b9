#include "model/cmPlate.h"

#include "Test.h"

namespace zorvane {
namespace {

const String kThree = "PLATE P\r\nROWS 8\r\nWELL A\r\nDEPTH 1\r\nWELL B\r\nDEPTH 2\r\nVOLUME 2\r\n"
                      "WELL C\r\nDEPTH 3";
/// The same without a property in front of the first block.
const String kBlocksOnly = "PLATE P\r\nWELL A\r\nDEPTH 1\r\nWELL B\r\nDEPTH 2\r\nWELL C\r\nDEPTH 3";

/// Names of the sub-wells, then the recorded properties.
String StateOf(const cmPlate& plate) {
    String text;
    for (const auto& each : *plate.CompoundWell())
        text += each->WellName() + " ";
    for (const auto& pair : plate.Properties)
        text += "|" + pair->Name() + "=" + pair->Value();
    return text;
}

struct Row {
    String text;
    void (*action)(cmPlate& plate);
    Long error;
    const char* after;
};

void ExpectStates(const std::vector<Row>& rows) {
    const TestProcess process;
    for (const auto& row : rows) {
        cmPlate plate;
        plate.SetFromText(row.text);
        EXPECT_EQ(NumberRaisedBy([&] { row.action(plate); }), row.error) << row.after;
        EXPECT_EQ(StateOf(plate), row.after);
    }
}

TEST(SubWellOperations, Remove) {
    ExpectStates({
        {kThree, [](cmPlate& p) { p.RemoveSubWell(2); }, 0,
         "A C |ROWS=8|A.WELL=A|A.DEPTH=1|C.WELL=C|C.DEPTH=3"},
        {"PLATE P\r\nDEPTH 1", [](cmPlate& p) { p.RemoveSubWell(1); }, 91, "DEFAULT |DEPTH=1"},
    });
}

TEST(SubWellOperations, Rename) {
    ExpectStates({
        {kThree, [](cmPlate& p) { p.RenameSubWell(1, "Z"); }, 0,
         "Z B C |ROWS=8|Z.WELL=Z|Z.DEPTH=1|B.WELL=B|B.DEPTH=2|B.VOLUME=2|C.WELL=C|C.DEPTH=3"},
        {kThree, [](cmPlate& p) { p.RenameSubWell(1, "a"); }, 0,
         "a B C |ROWS=8|a.WELL=a|a.DEPTH=1|B.WELL=B|B.DEPTH=2|B.VOLUME=2|C.WELL=C|C.DEPTH=3"},
        {kBlocksOnly, [](cmPlate& p) { p.RenameSubWell(1, "Z"); }, 0,
         "Z B C |B.WELL=B|B.DEPTH=2|C.WELL=C|C.DEPTH=3|Z.WELL=Z|Z.DEPTH=1"},
        {"PLATE P\r\nDEPTH 1", [](cmPlate& p) { p.RenameSubWell(1, "Z"); }, 0, "Z |DEPTH=1"},
        {kBlocksOnly, [](cmPlate& p) { p.RenameSubWell(3, "B"); }, 457,
         "A B |A.WELL=A|A.DEPTH=1|B.DEPTH=2|C.DEPTH=3|B.WELL=B"},
    });
}

TEST(SubWellOperations, Swap) {
    ExpectStates({
        {kThree, [](cmPlate& p) { p.SwapSubWells(1, 2); }, 0,
         "B A C |ROWS=8|B.WELL=B|B.DEPTH=2|B.VOLUME=2|A.WELL=A|A.DEPTH=1|C.WELL=C|C.DEPTH=3"},
        {kThree, [](cmPlate& p) { p.SwapSubWells(3, 1); }, 0,
         "C B A |ROWS=8|C.WELL=C|C.DEPTH=3|B.WELL=B|B.DEPTH=2|B.VOLUME=2|A.WELL=A|A.DEPTH=1"},
        {kBlocksOnly, [](cmPlate& p) { p.SwapSubWells(1, 2); }, 0,
         "B A C |C.WELL=C|C.DEPTH=3|B.WELL=B|B.DEPTH=2|A.WELL=A|A.DEPTH=1"},
        {"PLATE P\r\nROWS 8\r\nDEPTH 1\r\nWELL B", [](cmPlate& p) { p.SwapSubWells(1, 2); }, 0,
         "DEFAULT B |ROWS=8|DEPTH=1|B.WELL=B"},
        {kBlocksOnly, [](cmPlate& p) { p.SwapSubWells(1, 1); }, 9,
         "B C |A.WELL=A|A.DEPTH=1|B.WELL=B|B.DEPTH=2|C.WELL=C|C.DEPTH=3"},
        {kBlocksOnly, [](cmPlate& p) { p.SwapSubWells(2, 2); }, 457,
         "B C |A.WELL=A|A.DEPTH=1|B.WELL=B|B.DEPTH=2|C.WELL=C|C.DEPTH=3"},
    });
}

std::shared_ptr<WellDetails> NewWell() {
    auto well = std::make_shared<WellDetails>();
    well->WellName("N");
    return well;
}

TEST(SubWellOperations, Add) {
    ExpectStates({
        {"PLATE P\r\nwell A\r\nDEPTH 1", [](cmPlate& p) { p.AddSubWell(NewWell(), -1); }, 0,
         "A N |A.well=A|A.DEPTH=1"},
        {"PLATE P\r\nWell A\r\nDEPTH 1",
         [](cmPlate& p) { p.AddSubWell(NewWell(), 0, p.CompoundWell()->Item(1)); }, 0,
         "N A |A.Well=A|A.DEPTH=1|N.Well=N|N.DEPTH=1"},
        {"PLATE P\r\nWELL A", // Only "Well" in this very form takes the new name.
         [](cmPlate& p) { p.AddSubWell(NewWell(), 1, p.CompoundWell()->Item(1)); }, 0,
         "A N |A.WELL=A|N.WELL=A"},
    });
}

} // namespace
} // namespace zorvane
