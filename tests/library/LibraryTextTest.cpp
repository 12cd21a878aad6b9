#include "library/LibraryText.h"
#include "model/cmPlate.h"
#include "platetext/EveryValue.h"
#include "platetext/LibraryIndex.h"
#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace zorvane {
namespace {

/// What the library is after a change, or why there is none.
template <class Change>
String After(Change&& change) {
    try {
        return change().Bytes();
    } catch (const RuntimeError& error) {
        return "failed: " + error.Description();
    }
}

String Replaced(const String& library, const String& definition) {
    return After([&] { return LibraryText(library).WithReplaced(definition); });
}

String Appended(const String& library, const String& definition) {
    return After([&] { return LibraryText(library).WithAppended(definition); });
}

TEST(LibraryText, ReplacesOnePlateByteForByte) {
    const struct {
        const char* what;
        String before;
        String definition;
        String after;
    } cases[] = {
        {"LF, comments and blank lines around it",
         "; library\n\nPLATE A\nROWS 1\n\n; about B\nPLATE b  \n ROWS 2\n\n; about C\nPLATE C\n",
         "Plate B\r\n; about C\r\n    ROWS 3\r\n",
         "; library\n\nPLATE A\nROWS 1\n\n; about B\nPlate B\n    ROWS 3\n\n; about C\nPLATE C\n"},
        {"CR LF", "PLATE A\r\nROWS 1\r\nPLATE B\r\n", "Plate A\r\n    ROWS 2\r\n",
         "Plate A\r\n    ROWS 2\r\nPLATE B\r\n"},
        {"CR", "PLATE A\rROWS 1\rPLATE B\r", "Plate A\r\n    ROWS 2\r\n",
         "Plate A\r    ROWS 2\rPLATE B\r"},
        {"mixed: its own line ends", "PLATE A\r\nPLATE B\nROWS 1\nPLATE C\r\n",
         "Plate B\r\n    ROWS 2\r\n", "PLATE A\r\nPlate B\n    ROWS 2\nPLATE C\r\n"},
        {"the last line without an end", "PLATE A\nPLATE B\nROWS 1", "Plate B\r\n    ROWS 2\r\n",
         "PLATE A\nPlate B\n    ROWS 2"},
        {"one line in all", "PLATE A", "Plate A\r\n    ROWS 2\r\n", "Plate A\r\n    ROWS 2"},
        {"the first of a name", "PLATE A\nROWS 1\nPLATE a\nROWS 2\n", "Plate A\r\n    ROWS 3\r\n",
         "Plate A\n    ROWS 3\nPLATE a\nROWS 2\n"},
        {"its own comments, wherever they stood", "PLATE A\nROWS 1\n;one\nCOLS 2\n\t; two\t2\n",
         "Plate A\r\n; one\r\n; two 2\r\n; three\r\n    ROWS 1\r\n",
         "Plate A\n; one\n; three\n    ROWS 1\n\t; two\t2\n"},
        {"comments at the end of lines, which the reader repeats",
         "PLATE A ; a\nROWS 1 ; one\nCOLS 2\n",
         "Plate A\r\n; a\r\n; ROWS 1 : one\r\n    ROWS 1 ; one\r\n    COLS 3\r\n",
         "Plate A\n; a\n    ROWS 1 ; one\n    COLS 3\n"},
        {"keywords that the writer spells in another case",
         "PLATE A\nRows 1 ; one\nWELL Drop 'two\n",
         "Plate A\r\n; Rows 1 : one\r\n; WELL Drop : two\r\n    ROWS 1 ; one\r\n"
         "    Well Drop 'two\r\n",
         "Plate A\n    ROWS 1 ; one\n    Well Drop 'two\n"},
        {"a comment on the next PLATE line, like its own", "PLATE A ; x\nROWS 1\nPLATE B ; x\n",
         "Plate A\r\n; x\r\n; x\r\n    ROWS 2\r\n", "Plate A\n; x\n    ROWS 2\nPLATE B ; x\n"},
        {"a plate of comments alone", "PLATE A ; x\nPLATE B\n", "Plate A\r\n; x\r\n",
         "Plate A\n; x\nPLATE B\n"},
        {"in front of END", "PLATE A\nROWS 1\n\nEND\njunk\n", "Plate A\r\n    ROWS 2\r\n",
         "Plate A\n    ROWS 2\n\nEND\njunk\n"},
        {"bytes of no encoding", "PLATE A\nNOTE \xFF\nPLATE B\n; \xFE",
         "Plate A\r\n    NOTE \xFF\r\n", "Plate A\n    NOTE \xFF\nPLATE B\n; \xFE"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(Replaced(each.before, each.definition), each.after) << each.what;
}

TEST(LibraryText, RefusesWhatCouldNotBeReadBack) {
    const struct {
        const char* before;
        const char* definition;
        const char* reason;
    } cases[] = {
        {"PLATE A\n", "Plate B\r\n", "the library has no plate \"B\""},
        {"", "Plate A\r\n", "the library has no plate \"A\""},
        {"PLATE B\nEND\nPLATE A\n", "Plate A\r\n",
         "the library has no plate \"A\" that can be found, because a line outside any plate ends "
         "every search of it"},
        {"PLATE B\nROWS 99999\nPLATE A\n", "Plate A\r\n",
         "the library has no plate \"A\" that can be found, because a line that cannot be taken as "
         "written ends every search of it"},
        {"\xEF\xBB\xBFPLATE A\n", "Plate A\r\n",
         "the library has no plate \"A\" that can be found, because it begins with a byte order "
         "mark"},
        {"PLATE A\nPLATE B\n", "Plate A\r\n    Well x\r\n    Well X\r\n",
         "the definition of \"A\" could not be read back"},
        {"PLATE A\nPLATE B\n", "Plate A\r\n    ROWS 99999\r\n",
         "the definition of \"A\" could not be read back"},
        {"PLATE A\nPLATE B\n", "Plate A\r\n    PLATE C\r\n",
         "the definition of \"A\" could not be read back"},
        {"PLATE A\n", "no plate line\r\n", "the library has no plate \"\""},
    };
    for (const auto& each : cases)
        EXPECT_EQ(Replaced(each.before, each.definition), String("failed: ") + each.reason)
            << each.before;
}

TEST(LibraryText, AddsAPlateBehindTheLastOne) {
    const struct {
        String before;
        String definition;
        String after;
    } cases[] = {
        {"", "Plate A\r\n    ROWS 1\r\n", "Plate A\r\n    ROWS 1\r\n"},
        {"PLATE A\nROWS 1\n", "Plate B\r\n    ROWS 2\r\n",
         "PLATE A\nROWS 1\n\nPlate B\n    ROWS 2\n"},
        {"PLATE A\rROWS 1", "Plate B\r\n    ROWS 2\r\n",
         "PLATE A\rROWS 1\r\rPlate B\r    ROWS 2\r"},
        {"PLATE A\n; end\n\n", "Plate B\r\n", "PLATE A\n; end\n\nPlate B\n"},
        {"PLATE A\n", "Plate a\r\n", "failed: the library has a plate \"A\" already"},
        {"PLATE A\nEND\n", "Plate B\r\n",
         "failed: the library has no plate \"B\" that can be found, because a line outside any "
         "plate ends every search of it"},
        {"PLATE A\n", "Plate B\r\nEND\r\n",
         "failed: the definition of \"B\" could not be read back"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(Appended(each.before, each.definition), each.after) << each.before;
}

String SampleIn(const String& lineEnd) {
    std::ifstream file(ZORVANE_SAMPLE_LIBRARY, std::ios::binary);
    String bytes;
    for (String line; std::getline(file, line);)
        bytes += line + lineEnd;
    return bytes;
}

TEST(LibraryText, ChangesNoOtherPlateOfTheSampleLibrary) {
    for (const char* const lineEnd : {"\n", "\r\n", "\r"}) {
        const LibraryText library(SampleIn(lineEnd));
        for (const LibraryEntry& entry : ListLibrary(ZORVANE_SAMPLE_LIBRARY).plates) {
            const PlateBlock block = library.Get(entry.name);
            const LibraryText same = library.WithReplaced(block.definition);
            EXPECT_EQ(same.Get(entry.name).definition, block.definition);
            EXPECT_EQ(same.WithReplaced(block.definition).Bytes(), same.Bytes());

            cmPlate plate;
            plate.SetFromText(block.definition);
            RecordEveryValue(plate);
            plate.Rotate90();
            const LibraryText turned = library.WithReplaced(plate.Text());
            const PlateBlock now = turned.Get(entry.name);
            EXPECT_EQ(now.definition, plate.Text());
            EXPECT_EQ(turned.Bytes().substr(0, now.begin), library.Bytes().substr(0, block.begin));
            EXPECT_EQ(turned.Bytes().substr(now.end), library.Bytes().substr(block.end));
        }
    }
}

TEST(Definitions, AreRenamedToWhatALibraryCanFind) {
    EXPECT_EQ(Renamed("Plate A\r\n; Plate A\r\n    ROWS 1\r\n", "B"),
              "Plate B\r\n; Plate A\r\n    ROWS 1\r\n");
    for (const char* const name : {"", "two words", "a\tb", ";a", "a\nROWS"})
        EXPECT_THROW(Renamed("Plate A\r\n", name), RuntimeError) << name;
}

} // namespace
} // namespace zorvane
