#include "apps/plate/ToolRun.h"

namespace zorvane {
namespace {

constexpr const char* kLibrary = "; small\n"
                                 "PLATE One\n"
                                 "ROWS 2\nCOLS 3\nROWLABEL A\nCOLLABEL 1\n"
                                 "XPITCH 9\nYPITCH 9\nXOVERALL 30\nYOVERALL 20\nHEIGHT 10\n"
                                 "WELL Drop\nXOFFSET 4\nYOFFSET 5\nDEPTH 8\n"
                                 "WELL Moat\nXOFFSET 6\nYOFFSET 7\nDEPTH 9\n"
                                 "\n; about Two\nPLATE Two\nROWS 1\nCOLS 1\nVOLUME 5\nWELL Lid\n";

/// The library under a name of its own for each test, and the backup that a save leaves beside it.
struct EditedLibrary {
    EditedLibrary() { std::ofstream(path, std::ios::binary) << kLibrary; }
    ~EditedLibrary() {
        std::filesystem::remove(path);
        std::filesystem::remove(path + "~");
    }
    ToolRun Edit(const String& arguments) const {
        return ToolRun("edit " + Quoted(path) + " " + arguments);
    }
    const String path =
        testing::TempDir() + testing::UnitTest::GetInstance()->current_test_info()->name() + ".dat";
};

String Head(const String& text) { return "Plate One\r\n; about Two\r\n" + text; }

TEST(EditCommand, MakesTheChangesInTheOrderGiven) {
    const EditedLibrary library;
    const String plate = "    ROWS 2\r\n    COLS 3\r\n    ROWLABEL A\r\n    COLLABEL 1\r\n"
                         "    XPITCH 9\r\n    YPITCH 9\r\n    XOVERALL 30\r\n    YOVERALL 20\r\n"
                         "    HEIGHT 10\r\n";
    const String drop = "\r\n    Well Drop\r\n      XOFFSET 4\r\n      YOFFSET 5\r\n"
                        "      DEPTH 8\r\n";
    const String moat = "\r\n    Well Moat\r\n      XOFFSET 6\r\n      YOFFSET 7\r\n"
                        "      DEPTH 9\r\n";
    const auto renamed = [](String block, const String& name) {
        return block.replace(block.find("Well ") + 5, 4, name);
    };
    const struct {
        const char* arguments;
        String out;
    } cases[] = {
        {"one --rename drop=Top", Head(plate + renamed(drop, "Top") + moat)},
        {"one --rename drop=DROP", Head(plate + renamed(drop, "DROP") + moat)},
        {"ONE --swap MOAT,drop", Head(plate + moat + drop)},
        {"One --remove drop", Head(plate + moat)},
        {"One --add New=drop", Head(plate + drop + moat + renamed(drop, "New"))},
        {"One --remove Moat --rename Drop=Moat --add Drop=moat",
         Head(plate + renamed(drop, "Moat") + drop)},
        {"One --rename Drop=a --rename Moat=Drop --rename a=Moat",
         Head(plate + renamed(drop, "Moat") + renamed(moat, "Drop"))},
    };
    for (const auto& each : cases) {
        const ToolRun run = library.Edit(each.arguments);
        EXPECT_EQ(run.out, each.out) << each.arguments;
        EXPECT_EQ(run.err, "") << each.arguments;
        EXPECT_EQ(run.exitCode, 0) << each.arguments;
    }
    EXPECT_EQ(BytesOf(library.path), kLibrary);
}

// What a turn or shift records for the first time must stay with its own sub-well.
TEST(EditCommand, TurnsAndShiftsTheWholePlate) {
    const EditedLibrary library;
    const String out = library.Edit("One --rotate90 --shift -1,0.5,2").out;
    for (const char* part :
         {"    ROWS 3\r\n    COLS 2\r\n    ROWLABEL 3\r\n    COLLABEL A\r\n",
          "    XOVERALL 20.00\r\n    YOVERALL 30.00\r\n",
          "    Well Drop\r\n      XOFFSET 4.00\r\n      YOFFSET 8.50\r\n      DEPTH 6.00\r\n",
          "    Well Moat\r\n      XOFFSET 6.00\r\n      YOFFSET 6.50\r\n      DEPTH 7.00\r\n"})
        EXPECT_NE(out.find(part), out.npos) << part << "\n" << out;
    EXPECT_EQ(library.Edit("One --rotate90 --rotate90 --rotate90 --rotate90 --diff").exitCode, 0);
}

TEST(EditCommand, SavesInPlaceAndKeepsTheRestByteForByte) {
    const EditedLibrary library;
    const ToolRun run = library.Edit("One --remove Moat --in-place --diff");
    EXPECT_EQ(run.exitCode, 0) << run.err;
    const String now = BytesOf(library.path);
    EXPECT_EQ(now, "; small\nPlate One\n    ROWS 2\n    COLS 3\n    ROWLABEL A\n    COLLABEL 1\n"
                   "    XPITCH 9\n    YPITCH 9\n    XOVERALL 30\n    YOVERALL 20\n    HEIGHT 10\n"
                   "\n    Well Drop\n      XOFFSET 4\n      YOFFSET 5\n      DEPTH 8\n"
                   "\n; about Two\nPLATE Two\nROWS 1\nCOLS 1\nVOLUME 5\nWELL Lid\n");
    EXPECT_EQ(BytesOf(library.path + "~"), kLibrary);
    EXPECT_EQ(run.out.substr(0, run.out.find("\n ; small")),
              "--- " + library.path + "\t\n+++ " + library.path + "\t\n@@ -1,22 +1,19 @@");
    EXPECT_EQ(library.Edit("One --shift 0,0,0 --in-place").out, "");
    const String recorded = BytesOf(library.path);
    EXPECT_EQ(library.Edit("One --shift 0,0,0 --in-place --diff").out, "") << "nothing changes";
    EXPECT_EQ(BytesOf(library.path), recorded);
}

TEST(EditCommand, SaysWhatCannotBeDoneAndLeavesTheLibrary) {
    const EditedLibrary library;
    const struct {
        const char* arguments;
        int exitCode;
        const char* err; ///< behind the path of the library; null for any
    } cases[] = {
        {"Three --rotate90", 1, ": the library has no plate \"Three\""},
        {"One --remove Top", 1, ": the plate has no sub-well \"Top\""},
        {"One --rename Top=Lid", 1, ": the plate has no sub-well \"Top\""},
        {"One --rename Drop=", 1, ": the name of a sub-well must not be empty"},
        {"One --rename Drop=moat", 1, ": the plate has a sub-well \"moat\" already"},
        {"One --add Drop=Moat", 1, ": the plate has a sub-well \"Drop\" already"},
        {"One --add A.B=Moat", 1,
         ": \"A.B\" is no name for a sub-well, which is one word without a full stop that does not "
         "begin with \";\""},
        {"One --swap Drop,drop", 1, ": sub-well \"Drop\" cannot be exchanged with itself"},
        {"Two --remove DEFAULT", 1, ": sub-well \"DEFAULT\" has no WELL line of its own"},
        {"Two --shift 1,1,1", 1,
         ": the changed definition of \"Two\" would be read back as another plate, \"Xoffset "
         "1.00\" in \"Well DEFAULT\" as \"Xoffset 0.00\""},
        {"One --shift 3e38,0,0 --shift 3e38,0,0", 1, ": a value would be too large"},
        {"One --shift 1,2", 2, nullptr},
        {"One --shift 1,2,x", 2, nullptr},
        {"One --shift 1e99,0,0", 2, nullptr},
        {"One --rename Drop", 2, nullptr},
        {"One --swap Drop", 2, nullptr},
        {"One", 2, nullptr},
    };
    for (const auto& each : cases) {
        const ToolRun run = library.Edit(each.arguments + String(" --in-place"));
        EXPECT_EQ(run.exitCode, each.exitCode) << each.arguments << run.err;
        EXPECT_EQ(run.out, "") << each.arguments;
        if (each.err) {
            const String expected = "plate: " + library.path + each.err + "\n";
            EXPECT_EQ(run.err, expected) << each.arguments;
        } else {
            EXPECT_NE(run.err, "") << each.arguments;
        }
    }
    EXPECT_EQ(BytesOf(library.path), kLibrary);
    EXPECT_FALSE(std::filesystem::exists(library.path + "~"));
    EXPECT_EQ(ToolRun("edit missing.dat One --rotate90").err,
              "plate: missing.dat cannot be read: it is not there\n");
}

} // namespace
} // namespace zorvane
