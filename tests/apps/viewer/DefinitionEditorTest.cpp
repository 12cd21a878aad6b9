#include "apps/viewer/logic/DefinitionEditor.h"

#include "TempFile.h"
#include "control/Plate.h"
#include "library/DiskFiles.h"
#include "library/ReplaceFile.h"
#include "platform/memory/MemorySite.h"

namespace zorvane {
namespace {

constexpr const char* kGrid =
    "ROWS 2\nCOLS 3\nROWLABEL A\nCOLLABEL 1\nXPITCH 9\nYPITCH 9\nXOVERALL 30\nYOVERALL 20\n"
    "WELL Drop\nXOFFSET 4\nYOFFSET 5\nWELLSIZEX 2\nWELLSIZEY 2\n";

struct Editing {
    explicit Editing(const String& library) : file(library) { editor.Begin(file.Path(), "one"); }
    ~Editing() { std::filesystem::remove(BackupOf(file.Path())); }

    /// The control shows the present definition; what it then gives as text.
    String Shown() {
        plate.PlateClassText(editor.Text());
        return plate.PlateClassText();
    }
    String Difference() const {
        String text;
        for (const ChangedLine& line : editor.Difference())
            if (line.change != LineChange::Same)
                text += (line.change == LineChange::Added ? "+" : "-") +
                        line.text.substr(line.text.find_first_not_of(' ')) + "\n";
        return text;
    }

    TempFile file;
    DiskFiles files;
    DefinitionEditor editor{files};
    MemorySite site;
    Plate plate{site};
};

TEST(DefinitionEditor, SeesNoEditInWhatTheControlMakesOfItsText) {
    for (const String end :
         {"", "; about the next one\n", "ROWS 2 ; two\n; own\nCOLS 3 ' three\n"}) {
        Editing editing("PLATE One ; first\n" + String(kGrid) + end);
        for (int times = 0; times < 3; ++times)
            editing.editor.Take(editing.Shown());
        EXPECT_FALSE(editing.editor.CanUndo()) << end << editing.editor.Text();
        EXPECT_TRUE(editing.editor.IsSaved());
    }
}

TEST(DefinitionEditor, UndoesSavesAndComparesEditsOfAControl) {
    Editing editing("PLATE One\n" + String(kGrid) + "\n; about Two\nPLATE Two\n");
    DefinitionEditor& editor = editing.editor;
    const String before = editing.Shown();
    EXPECT_EQ(editing.Difference(), "+DEPTH 0.00\n+RIMWIDTH 0.00\n+RIMHEIGHT 0.00\n"
                                    "+RIMCENTERX 0.00\n+RIMCENTERY 0.00\n");
    editing.plate.MenuChosen(mnuRotate90);
    editor.Take(editing.plate.PlateClassText());
    EXPECT_FALSE(editor.IsSaved());
    EXPECT_EQ(editing.Difference().substr(0, 16), "-ROWS 2\n-COLS 3\n");
    editor.Undo();
    EXPECT_EQ(editing.Shown(), before);
    editor.Redo();
    EXPECT_EQ(editing.Shown().substr(0, 48),
              "Plate One\r\n; about Two\r\n    ROWS 3\r\n    COLS 2\r\n");

    editor.Save();
    EXPECT_TRUE(editor.IsSaved());
    EXPECT_EQ(editing.Difference(), "");
    const String saved = editing.file.Bytes();
    EXPECT_EQ(saved.substr(0, 33), "Plate One\n    ROWS 3\n    COLS 2\n ");
    EXPECT_EQ(saved.substr(saved.size() - 24), "\n\n; about Two\nPLATE Two\n") << saved;

    EXPECT_THROW(editor.SaveAs("two"), RuntimeError);
    EXPECT_EQ(editing.file.Bytes(), saved);
    editor.SaveAs("Three");
    EXPECT_EQ(editor.PlateName(), "Three");
    EXPECT_EQ(editing.file.Bytes(),
              saved + "\nPlate Three\n" + saved.substr(10, saved.find("\n\n; about") - 9));
    EXPECT_EQ(editing.Difference(), "");
}

TEST(DefinitionEditor, KeepsEditsWhenTheFileHasChanged) {
    Editing editing("PLATE One\n" + String(kGrid));
    editing.Shown();
    editing.plate.MenuChosen(mnuRotate90);
    editing.editor.Take(editing.plate.PlateClassText());
    const String theirs = "PLATE Zero\nPLATE One\nROWS 9\n" + String(kGrid).substr(7);
    std::ofstream(editing.file.Path(), std::ios::binary) << theirs;
    try {
        editing.editor.Save();
        ADD_FAILURE() << "saved over another change";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), kChangedOnDisk);
    }
    EXPECT_EQ(editing.file.Bytes(), theirs);
    editing.editor.Reload();
    EXPECT_FALSE(editing.editor.IsSaved());
    EXPECT_EQ(editing.Difference().substr(0, 8), "-ROWS 9\n");
    editing.editor.Save();
    EXPECT_EQ(editing.file.Bytes().substr(0, 34), "PLATE Zero\nPlate One\n    ROWS 3\n  ");
    EXPECT_TRUE(editing.editor.IsSaved());
}

TEST(DefinitionEditor, RefusesAPlateOfWhichTheControlWouldLoseLines) {
    const TempFile file("PLATE One\nROWS 2\nNOTE kept by libraries\nCOLS 3\n");
    DiskFiles files;
    DefinitionEditor editor(files);
    try {
        editor.Begin(file.Path(), "One");
        ADD_FAILURE() << "begun";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Description(),
                  "\"One\" cannot be edited here: the control would lose the line \"COLS 3\", at "
                  "or behind a keyword that it does not know.");
    }
    EXPECT_FALSE(editor.IsOpen());
}

TEST(DefinitionEditor, SavesNothingThatCouldNotBeReadBack) {
    struct Row {
        SubWellCommand command;
        const char* answer;
        const char* line;
    };
    const String library = "PLATE One\n" + String(kGrid) + "WELL Moat\nWELL Tip\n";
    for (const Row& row : {Row{mnuAddNewSubWell, "a.b", "b.XOFFSET 0.00"},
                           Row{mnuRenameSubwell, "a.b", "b.XOFFSET 0.00"},
                           Row{mnuRenameSubwell, "Drop", "XOFFSET 4"},
                           Row{mnuRenameSubwell, "My Drop", "Well My Drop"}}) {
        Editing editing(library);
        editing.Shown();
        editing.plate.PageChosen(3);
        editing.site.answers = {row.answer};
        try {
            editing.plate.MenuChosen(row.command);
            editing.plate.ApplyPressed();
        } catch (const RuntimeError&) { // The definition is left half changed.
        }
        editing.editor.Take(editing.plate.PlateClassText());
        for (const bool asNew : {false, true}) {
            try {
                asNew ? editing.editor.SaveAs("Two") : editing.editor.Save();
                ADD_FAILURE() << row.answer << " saved:\n" << editing.file.Bytes();
            } catch (const RuntimeError& error) {
                EXPECT_EQ(error.Description(),
                          String(asNew ? "\"Two" : "\"One") + "\" was not saved: the line \"" +
                              row.line +
                              "\" could not be read back. Undo brings the plate back as it was.");
            }
        }
        EXPECT_EQ(editing.file.Bytes(), library) << row.answer;
        editing.editor.Undo();
        EXPECT_TRUE(editing.editor.IsSaved()) << row.answer;
    }
}

} // namespace
} // namespace zorvane
