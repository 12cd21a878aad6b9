#include "model/cmPlate.h"
#include "platetext/LibraryIndex.h"

#include "Test.h"

namespace zorvane {
namespace {

TEST(PlateLibrary, FindsAPlateOrSaysThatItCannot) {
    const auto look = [](const char* why, const String& text, const char* name, bool found) {
        TestProcess process;
        const TempFile library(text);
        const String lost = "Can't find Plate <" + String(name) + "> in " + library.Path();
        if (!found) process.messages.Expect(lost);
        cmPlate plate;
        plate.PlateName(name);
        EXPECT_EQ(plate.SetPlate(library.Path(), plate.PlateName()), found) << why;
    };
    look("the last plate, without a line end", "PLATE A\nROWS 1\nPLATE B\nROWS 2", "B", true);
    look("another letter case", "PLATE Demo\n", "dEMO", true);
    look("a prefix is another name", "PLATE Demo1\nPLATE Demo12\n", "Demo", false);
    look("the first of two", "PLATE A\nEND\nPLATE B\nEND\n", "A", true);
    look("after an END", "PLATE A\nEND\nPLATE B\nEND\n", "B", false);
    look("after a stray line", "PLATE A\nINCLUDE x\nPLATE B\n", "B", false);
    look("after a line that fails", "PLATE A\nWELL w\nWELL W\nPLATE B\n", "B", false);
    look("after an unknown keyword", "PLATE A\nFOO 1\nPLATE B\n", "B", true);
    look("bytes of any kind in a plate", "PLATE A\n\xFF\xFE \x01\x80\nPLATE B", "B", true);
    const String megabyte(1 << 20, '7');
    look("a megabyte of number", "PLATE A\nCOLS 7" + megabyte + "\nPLATE B", "B", false);
    look("a megabyte of comment", "PLATE A\n;" + megabyte + "\nPLATE B", "B", true);
    look("sixteen bits and a half", "PLATE A\nROWS 32767.5\nPLATE B", "B", false);
}

TEST(PlateLibrary, SaysThatItCannotRead) {
    TestProcess process;
    process.messages.Expect("Error trying to read \"Demo96\" from <no such file>");
    EXPECT_FALSE(cmPlate().SetPlate("no such file", "Demo96"));
    EXPECT_FALSE(cmPlate().SetPlate("no such file", "")) << "nothing to report";
    EXPECT_FALSE(cmPlate().SetPlate("", "Demo96")) << "nothing to report";
}

TEST(LibraryIndex, ListsWhatALookUpReads) {
    const TempFile library(
        "; two plates\n\nPLATE A ; first\nROWS 8\nCOLS 12\nTAGLIST x y\nWELL r\n"
        "WELL d\nPLATE a\n\n ; another\nFOO\nPLATE\n  PLATE B\nROWS 1e9\nPLATE C");
    const LibraryListing listing = ListLibrary(library.Path());
    String text;
    for (const auto& each : listing.plates) {
        text += std::to_string(each.line) + ":" + each.name + " " + std::to_string(each.rows) +
                "x" + std::to_string(each.cols) + " " + std::to_string(each.subWells) + " [" +
                each.tags + "]" + (each.found ? " found\n" : "\n");
    }
    EXPECT_EQ(text, "3:A 8x12 2 [x y] found\n9:a 8x12 0 []\n13: 8x12 0 []\n14:B 8x12 0 []\n");
    EXPECT_EQ(listing.stoppedAtLine, 15);
    EXPECT_EQ(listing.code, 7);
}

TEST(LibraryIndex, SaysWhereTheReadingStops) {
    const auto stops = [](const char* text, std::size_t plates, Long line, Integer code) {
        const TempFile library(text);
        const LibraryListing listing = ListLibrary(library.Path());
        EXPECT_EQ(listing.plates.size(), plates) << text;
        EXPECT_EQ(listing.stoppedAtLine, line) << text;
        EXPECT_EQ(listing.code, code) << text;
    };
    stops("PLATE A\nEND\nPLATE B", 1, 2, 6);
    stops("stray\nPLATE A", 0, 1, 6);
    stops("PLATE A\nINCLUDE x\nPLATE B", 1, 2, -1);
    EXPECT_EQ(NumberRaisedBy([] { ListLibrary(testing::TempDir() + "no such file"); }), 53);
}

} // namespace
} // namespace zorvane
