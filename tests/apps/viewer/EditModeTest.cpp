#include "apps/viewer/EditMode.h"
#include "TempFile.h"
#include "apps/viewer/DifferencePanel.h"
#include "apps/viewer/LibraryPanel.h"
#include "apps/viewer/Notice.h"
#include "apps/viewer/OpenedWindow.h"
#include "library/ReplaceFile.h"

#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace zorvane {
namespace {

using Unsaved = EditQuestions::Unsaved;
using Conflict = EditQuestions::Conflict;

/// The viewer's window while it edits a plate of a copy of the sample library.
struct EditedWindow : OpenedWindow {
    EditedWindow() : file(Sample()) {
        window.Editing().Ask({[this](const QString&) {
                                  ++asked;
                                  return unsaved;
                              },
                              [this](const QString&) { return conflict; },
                              [](const QString&) { return QStringLiteral("Copy"); }});
        EXPECT_TRUE(window.OpenLibrary(QString::fromStdString(file.Path())));
        Toggle().trigger();
        QApplication::processEvents();
        EXPECT_TRUE(window.Editing().IsOn());
        EXPECT_TRUE(Control().DataVisible());
    }
    ~EditedWindow() {
        unsaved = Unsaved::Discard;
        std::filesystem::remove(BackupOf(file.Path()));
    }

    static String Sample() {
        std::ifstream sample(ZORVANE_SAMPLE_LIBRARY, std::ios::binary);
        return {std::istreambuf_iterator<char>(sample), {}};
    }

    QAction& Toggle() { return Action("&Edit Plate Type"); }
    QAction& Action(const QString& text) {
        for (auto* action : window.findChildren<QAction*>())
            if (action->text() == text) return *action;
        throw std::runtime_error("no action " + text.toStdString());
    }

    /// Chooses an entry of the panel's menu as the operator does.
    void Command(SubWellCommand command) {
        for (auto* button : window.findChildren<QPushButton*>()) {
            if (button->accessibleName() != "Sub-well commands") continue;
            QTimer::singleShot(0, [command] {
                auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                menu->setActiveAction(menu->actions().at(command));
                QTest::keyClick(menu, Qt::Key_Return);
            });
            QTest::mouseClick(button, Qt::LeftButton);
        }
        QApplication::processEvents();
    }

    String Text() { return Control().PlateClassText(); }
    QString Difference() { return Find<DifferencePanel>().Text(); }
    QString Problem() { return Find<DifferencePanel>().findChild<Notice*>()->Text(); }

    TempFile file;
    Unsaved unsaved = Unsaved::Cancel;
    Conflict conflict = Conflict::Cancel;
    int asked = 0;
};

TEST(EditMode, ShowsUndoesAndSavesTheCommandsOfThePanel) {
    EditedWindow host;
    const String before = host.Text();
    EXPECT_FALSE(host.Action("&Undo").isEnabled());
    host.Command(mnuRotate90);
    EXPECT_TRUE(host.Difference().contains("−   ROWS 4\n")) << host.Difference().toStdString();
    EXPECT_TRUE(host.Difference().contains("+     ROWS 6\n"));
    host.Action("&Undo").trigger();
    EXPECT_EQ(host.Text(), before);
    EXPECT_FALSE(host.window.Editing().HasUnsaved());
    EXPECT_TRUE(host.Control().DataVisible());
    host.Action("&Redo").trigger();
    EXPECT_EQ(host.Control().Rows, 6);

    host.Action("&Save to Library").trigger();
    EXPECT_FALSE(host.window.Editing().HasUnsaved());
    EXPECT_FALSE(host.Difference().contains("+"));
    EXPECT_EQ(host.Find<LibraryPanel>().Chosen(), "Hanging_24x1");
    cmPlate saved;
    EXPECT_TRUE(saved.SetPlate(host.file.Path(), "Hanging_24x1"));
    EXPECT_EQ(saved.Rows(), 6);
}

TEST(EditMode, SavesWhatIsTypedButNotYetApplied) {
    EditedWindow host;
    host.Control().PageChosen(kGeneralPage);
    QLineEdit* rows = nullptr;
    for (auto* edit : host.window.Session().Widget().findChildren<QLineEdit*>())
        if (edit->accessibleName() == "Rows" && edit->isVisible()) rows = edit;
    ASSERT_NE(rows, nullptr);
    rows->selectAll();
    QTest::keyClicks(rows, "3");
    QApplication::processEvents();
    EXPECT_TRUE(host.window.Editing().HasUnsaved());
    // The text box undoes its own typing first.
    QTest::keyClick(rows, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(rows->text(), "4");
    QTest::keyClick(rows, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    host.Action("&Save to Library").trigger();
    EXPECT_EQ(host.Control().Rows, 3);
    EXPECT_NE(host.file.Bytes().find("    ROWS 3\n"), String::npos);
}

TEST(EditMode, TellsOfAFailedCommandAndBringsThePlateBack) {
    EditedWindow host;
    host.Control().PageChosen(kGeneralPage + 2); // the commands address the one behind the last
    const String before = host.Text();
    host.Command(mnuRemoveSubWell);
    EXPECT_EQ(host.Problem(), "This could not be done: the plate has no such sub-well. Undo brings "
                              "the plate back as it was.");
    host.Command(mnuRotate90);
    host.Action("&Undo").trigger();
    EXPECT_EQ(host.Text(), before);
    EXPECT_EQ(host.Problem(), "");
}

TEST(EditMode, AsksBeforeEditsAreLost) {
    EditedWindow host;
    host.Command(mnuRotate90);
    const String edited = host.Text();
    auto& plates = host.Find<LibraryPanel>();
    plates.Choose(1);
    EXPECT_EQ(plates.Chosen(), "Hanging_24x1");
    EXPECT_FALSE(host.window.OpenLibrary(ZORVANE_SAMPLE_LIBRARY));
    EXPECT_FALSE(host.window.close());
    host.Toggle().trigger();
    EXPECT_TRUE(host.Toggle().isChecked());
    EXPECT_EQ(host.asked, 4);
    EXPECT_EQ(host.Text(), edited);

    host.unsaved = Unsaved::Discard;
    plates.Choose(1);
    EXPECT_EQ(host.Control().PlateName(), "Batch_24");
    EXPECT_TRUE(host.window.Editing().IsOn()) << "editing goes on with the other plate";
    EXPECT_EQ(host.file.Bytes(), EditedWindow::Sample());
    host.Command(mnuRotate90);
    host.unsaved = Unsaved::Save;
    host.Toggle().trigger();
    EXPECT_FALSE(host.window.Editing().IsOn());
    EXPECT_EQ(host.Control().Rows, 6);
    EXPECT_FALSE(host.Control().EditEnable());
    EXPECT_FALSE(host.Control().DataVisible());
}

TEST(EditMode, OverwritesNoChangeThatCameMeanwhile) {
    EditedWindow host;
    host.Command(mnuRotate90);
    const String theirs = EditedWindow::Sample() + "PLATE Theirs\nROWS 1\n";
    std::ofstream(host.file.Path(), std::ios::binary) << theirs;
    host.Action("&Save to Library").trigger();
    EXPECT_TRUE(host.Problem().contains("another program has changed it since it was read"));
    EXPECT_EQ(host.file.Bytes(), theirs);
    EXPECT_TRUE(host.window.Editing().HasUnsaved());

    host.conflict = Conflict::SaveAs;
    host.Action("&Save to Library").trigger();
    const String saved = host.file.Bytes();
    EXPECT_EQ(saved.substr(0, theirs.size()), theirs);
    EXPECT_EQ(saved.substr(theirs.size(), 12), "\nPlate Copy\n");
    EXPECT_EQ(host.Find<LibraryPanel>().Chosen(), "Copy");
    EXPECT_FALSE(host.window.Editing().HasUnsaved());

    std::filesystem::remove(host.file.Path());
    host.Command(mnuRotate90);
    host.Action("&Save to Library").trigger();
    EXPECT_TRUE(host.Problem().endsWith("looking for it failed: it is not there."))
        << host.Problem().toStdString();
}

} // namespace
} // namespace zorvane
