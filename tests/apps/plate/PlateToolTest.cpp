#include "ToolRun.h"

namespace zorvane {
namespace {

TEST(PlateTool, AnswersWithExitCodeOutputAndMessage) {
    const struct {
        const char* arguments;
        int exitCode;
        const char* out; ///< how the output begins; null for none at all
        const char* err; ///< the whole message; null for any
    } cases[] = {
        {"--help", 0, "Reads, checks, draws and changes plate libraries", ""},
        {"list --help", 0, "List the plates", ""},
        {"--version", 0, "plate ", ""},
        {"list LIB --csv", 0,
         "name,rows,columns,subwells,wells,tags\nNo_Plate,2,3,1,6,placeholder\n", ""},
        {"text LIB BATCH_24", 0,
         "Plate Batch_24\r\n; Batch plate with 24 round wells.\r\n    TAGLIST batch round 24\r\n   "
         " ROWS 4\r\n",
         ""},
        {"text LIB BATCH_24 --fields", 0,
         "Plate Batch_24\r\n; Batch plate with 24 round wells.\r\n    TAGLIST batch round 24\r\n   "
         " Cols 6\r\n",
         ""},
        {"wells LIB Batch_96_Turned --csv", 0,
         "well,row,column,x,y,xmin,ymin,xmax,ymax\nH12,0,0,14.38,11.24,10.38,7.24,18.38,15.24\nH11,"
         "0,1,23.38,",
         ""},
        {"wells LIB batch_24", 0,
         "well  row  column        x       y     xmin    ymin     xmax    ymax\nA1      0       0  "
         " 18.880  15.740   10.280   7.140   27.480  24.340\n",
         ""},
        {"wells LIB batch_24 --json", 0,
         "[\n  {\"well\": \"A1\", \"row\": 0, \"column\": 0, \"x\": 18.88,", ""},
        {"check LIB", 0, nullptr, ""},
        {"draw LIB batch_96 --size 800x600", 0, "<svg ", ""},
        {"draw LIB batch_96 -o /dev/stdout --select a1,H12.Drop1", 0, "<svg ", ""},
        {"draw LIB batch_96 --select Z9", 1, nullptr, "plate: the plate has no well Z9\n"},
        {"draw LIB batch_96 --scale 1000", 1, nullptr,
         "plate: batch_96 is too large to be drawn: choose a smaller scale, or check the "
         "library\n"},
        {"draw LIB batch_96 --data missing.csv", 1, nullptr,
         "plate: missing.csv: cannot be read\n"},
        {"draw LIB batch_96 -o /nowhere/a.svg", 1, nullptr,
         "plate: /nowhere/a.svg: cannot be written\n"},
        {"wells LIB Nowhere", 1, nullptr, nullptr},
        {"text LIB Nowhere", 1, nullptr, nullptr},
        {"list missing.dat", 1, nullptr, "plate: missing.dat: File not found\n"},
        {"check missing.dat", 1, nullptr, "plate: missing.dat: File not found\n"},
        {"list LIB >/dev/full", 1, nullptr, "plate: standard output: cannot be written\n"},
        {"draw LIB batch_96 --size 800", 2, nullptr, nullptr},
        {"draw LIB batch_96 --scale -1", 2, nullptr, nullptr},
        {"draw LIB batch_96 --scale 20 --size 800x600", 2, nullptr, nullptr},
        {"", 2, nullptr, nullptr},
        {"list", 2, nullptr, nullptr},
        {"list LIB --csv --json", 2, nullptr, nullptr},
        {"paint LIB", 2, nullptr, nullptr},
    };
    for (const auto& each : cases) {
        const ToolRun run(each.arguments);
        EXPECT_EQ(run.exitCode, each.exitCode) << each.arguments << "\n" << run.err;
        const String expected = each.out ? each.out : "";
        EXPECT_EQ(run.out.substr(0, each.out ? expected.size() : run.out.npos), expected)
            << each.arguments;
        if (each.err) {
            EXPECT_EQ(run.err, each.err) << each.arguments;
        } else {
            EXPECT_NE(run.err, "") << each.arguments;
        }
    }
}

TEST(PlateTool, TellsOnceThatAPlateCannotBeFound) {
    EXPECT_EQ(ToolRun("wells LIB Nowhere").err,
              "plate: Can't find Plate <Nowhere> in " ZORVANE_SAMPLE_LIBRARY "\n");
}

/// A library whose end is hidden by an END line, in its own place for the tool to read.
struct BrokenLibrary {
    BrokenLibrary() {
        std::ofstream(path, std::ios::binary) << "PLATE One, \"two\"\nROWS 1\nEND\nPLATE Three\n";
    }
    ~BrokenLibrary() { std::filesystem::remove(path); }
    const String path = testing::TempDir() + "plate_tool_broken.dat";
};

TEST(PlateTool, ListsWhatCanBeFoundAndSaysWhereTheSearchEnds) {
    const BrokenLibrary library;
    const ToolRun list("list --csv " + Quoted(library.path));
    EXPECT_EQ(list.exitCode, 1);
    EXPECT_EQ(list.out, "name,rows,columns,subwells,wells,tags\n\"One,\",1,0,0,0,\n");
    EXPECT_EQ(list.err, "plate: " + library.path +
                            ": the search for a plate ends at line 3; \"plate check\" says why\n");
}

TEST(PlateTool, ChecksEveryLibraryAndReportsForEditors) {
    const BrokenLibrary library;
    const ToolRun check("check missing.dat " + Quoted(library.path) + " LIB");
    EXPECT_EQ(check.exitCode, 1);
    EXPECT_EQ(check.err, "plate: missing.dat: File not found\n");
    EXPECT_NE(check.out.find(library.path + ":3: error: END ends every search of the library: the "
                                            "plate after it cannot be found\n    END\n    ^~~\n"),
              check.out.npos)
        << check.out;
}

TEST(PlateTool, DrawsDataOfWellsOrSaysWhereTheyAreWrong) {
    const ToolRun good("printf 'well,defined,volume,text,error\\nA1,yes,5,<full>,0\\nB2,yes,,,7\\n'"
                       " | " PLATE_TOOL " draw LIB batch_24 --size 800x600 --data -",
                       "");
    EXPECT_EQ(good.exitCode, 0) << good.err;
    for (const char* part :
         {"width=\"800\" height=\"600\"", "&lt;full&gt;", ">! 7<", ">Drop1: volume 5<"})
        EXPECT_NE(good.out.find(part), good.out.npos) << part;

    const ToolRun bad(
        "printf 'well,volume\\nA1,much\\n' | " PLATE_TOOL " draw LIB batch_24 --data -", "");
    EXPECT_EQ(bad.exitCode, 1);
    EXPECT_EQ(bad.out, "");
    EXPECT_EQ(bad.err, "plate: -: line 2, column 2 (volume): \"much\" is not a number\n");
}

} // namespace
} // namespace zorvane
