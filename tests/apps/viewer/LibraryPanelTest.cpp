#include "apps/viewer/LibraryPanel.h"
#include "TempFile.h"
#include "apps/viewer/Notice.h"

#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace zorvane {
namespace {

TEST(LibraryPanel, NarrowsDownWhileTypingAndChoosesWithTheArrowKeys) {
    LibraryPanel panel;
    panel.Show(ListLibrary(ZORVANE_SAMPLE_LIBRARY));
    auto* filter = panel.findChild<QLineEdit*>();
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(filter, key);
        return panel.Chosen().toStdString();
    };
    EXPECT_EQ(press(Qt::Key_Down), "No_Plate");
    QTest::keyClicks(filter, "SITTING");
    EXPECT_EQ(press(Qt::Key_Down), "Post_24x1");
    EXPECT_EQ(press(Qt::Key_Down), "Sitting_96x1");
    EXPECT_EQ(press(Qt::Key_Down), "Sitting_96x2");
    EXPECT_EQ(press(Qt::Key_Up), "Sitting_96x1");
    // The chosen plate is filtered out, and what is left lies above it.
    filter->setText("batch 24");
    EXPECT_EQ(press(Qt::Key_Return), "Batch_24");
}

TEST(LibraryPanel, TellsWhereReadingStopsAndSkipsPlatesThatCannotBeOpened) {
    const TempFile file("PLATE One\nROWS 1\nPLATE One\nROWS 2\nPLATE Two\nEND\nPLATE Lost\n");
    LibraryPanel panel;
    panel.Show(ListLibrary(file.Path()));
    EXPECT_EQ(panel.findChild<Notice*>()->Text().left(25), "Reading stops at line 6, ");
    auto* filter = panel.findChild<QLineEdit*>();
    QTest::keyClick(filter, Qt::Key_Down);
    QTest::keyClick(filter, Qt::Key_Down);
    EXPECT_EQ(panel.Chosen(), "Two");

    panel.Show({});
    EXPECT_EQ(panel.findChild<Notice*>()->Text(), "There is no plate in this file.");
}

} // namespace
} // namespace zorvane
