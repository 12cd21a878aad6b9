#include "library/LibraryText.h"
#include "Test.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

/// What a library is after a change, or why there is none.
struct Row {
    const char* what;
    String before;
    String definition;
    String after;
};

void ExpectRows(const std::vector<Row>& rows,
                LibraryText (LibraryText::*change)(const String&) const) {
    for (const Row& row : rows) {
        String after;
        const RaisedError error =
            RaisedBy([&] { after = (LibraryText(row.before).*change)(row.definition).Bytes(); });
        EXPECT_EQ(error.number ? "failed: " + error.description : after, row.after) << row.what;
    }
}

TEST(LibraryText, ReplacesOnePlateByteForByte) {
    ExpectRows(
        {
            {"LF, comments and blank lines around it",
             "; library\n\nPLATE A\nROWS 1\n\n; about B\nPLATE b  \n ROWS 2\n\n; about C\nPLATE "
             "C\n",
             "Plate B\r\n; about C\r\n    ROWS 3\r\n",
             "; library\n\nPLATE A\nROWS 1\n\n; about B\nPlate B\n    ROWS 3\n\n; about C\nPLATE "
             "C\n"},
            {"the first of a name", "PLATE A\nROWS 1\nPLATE a\nROWS 2\n",
             "Plate A\r\n    ROWS 3\r\n", "Plate A\n    ROWS 3\nPLATE a\nROWS 2\n"},
            {"its own comments, wherever they stood", "PLATE A\nROWS 1\n;one\nCOLS 2\n\t; two\t2\n",
             "Plate A\r\n; one\r\n; two 2\r\n; three\r\n    ROWS 1\r\n",
             "Plate A\n; one\n; three\n    ROWS 1\n\t; two\t2\n"},
            {"keywords that the writer spells in another case",
             "PLATE A\nRows 1 ; one\nWELL Drop 'two\n",
             "Plate A\r\n; Rows 1 : one\r\n; WELL Drop : two\r\n    ROWS 1 ; one\r\n"
             "    Well Drop 'two\r\n",
             "Plate A\n    ROWS 1 ; one\n    Well Drop 'two\n"},
            {"a comment on the next PLATE line, like its own", "PLATE A ; x\nROWS 1\nPLATE B ; x\n",
             "Plate A\r\n; x\r\n; x\r\n    ROWS 2\r\n", "Plate A\n; x\n    ROWS 2\nPLATE B ; x\n"},
            {"a plate of comments alone", "PLATE A ; x\nPLATE B\n", "Plate A\r\n; x\r\n",
             "Plate A\n; x\nPLATE B\n"},
            {"no such plate", "PLATE A\n", "Plate B\r\n", "failed: the library has no plate \"B\""},
            {"no plate", "PLATE A\n", "no plate line\r\n", "failed: the library has no plate \"\""},
            {"two of a name", "PLATE A\nPLATE B\n", "Plate A\r\n    Well x\r\n    Well X\r\n",
             "failed: the definition of \"A\" could not be read back"},
            {"a large number", "PLATE A\nPLATE B\n", "Plate A\r\n    ROWS 99999\r\n",
             "failed: the definition of \"A\" could not be read back"},
            {"a plate in a plate", "PLATE A\nPLATE B\n", "Plate A\r\n    PLATE C\r\n",
             "failed: the definition of \"A\" could not be read back"},
        },
        &LibraryText::WithReplaced);
}

TEST(LibraryText, AddsAPlateAfterTheLastOne) {
    ExpectRows(
        {
            {"to nothing", "", "Plate A\r\n    ROWS 1\r\n", "Plate A\r\n    ROWS 1\r\n"},
            {"LF", "PLATE A\nROWS 1\n", "Plate B\r\n    ROWS 2\r\n",
             "PLATE A\nROWS 1\n\nPlate B\n    ROWS 2\n"},
            {"CR", "PLATE A\rROWS 1", "Plate B\r\n    ROWS 2\r\n",
             "PLATE A\rROWS 1\r\rPlate B\r    ROWS 2\r"},
            {"blank line", "PLATE A\n; end\n\n", "Plate B\r\n", "PLATE A\n; end\n\nPlate B\n"},
            {"present", "PLATE A\n", "Plate a\r\n",
             "failed: the library has a plate \"A\" already"},
            {"END", "PLATE A\n", "Plate B\r\nEND\r\n",
             "failed: the definition of \"B\" could not be read back"},
        },
        &LibraryText::WithAppended);
}

TEST(Definitions, AreRenamedToWhatALibraryCanFind) {
    EXPECT_EQ(Renamed("Plate A\r\n; Plate A\r\n    ROWS 1\r\n", "B"),
              "Plate B\r\n; Plate A\r\n    ROWS 1\r\n");
    for (const char* const name : {"", "two words", "a\tb", ";a", "a\nROWS"})
        EXPECT_THROW(Renamed("Plate A\r\n", name), RuntimeError) << name;
}

} // namespace
} // namespace zorvane
