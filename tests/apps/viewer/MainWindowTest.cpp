#include "TempFile.h"
#include "apps/viewer/OpenedWindow.h"
#include "apps/viewer/WellInspector.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QTest>

namespace zorvane {
namespace {

/// Presses the left button on one well and releases it on another.
void Drag(Plate& plate, Integer from, Integer to) {
    const auto middle = [&](Integer well) {
        const Rect& rim = plate.Elements().WellRim[static_cast<std::size_t>(well)].box;
        return std::pair{rim.left + rim.width / 2, rim.top + rim.height / 2};
    };
    const auto [x1, y1] = middle(from);
    const auto [x2, y2] = middle(to);
    plate.ButtonDown(kLeftButton, 0, x1, y1);
    plate.PointerMove(kLeftButton, 0, x2, y2);
    plate.ButtonUp(kLeftButton, 0, x2, y2);
}

TEST(MainWindow, OpensOnACrystallizationPlateWithItsFirstWell) {
    OpenedWindow host;
    EXPECT_GT(host.Control().SubWellCount, 1);
    EXPECT_EQ(host.Control().WellIndex(), 1);
    EXPECT_EQ(host.window.Session().CurrentWell(), Integer{0});
    EXPECT_TRUE(host.window.windowTitle().contains("Plates(Tarvo).Dat"));
}

TEST(MainWindow, KeepsWhatIsOpenWhenALibraryCannotBeRead) {
    OpenedWindow host;
    const QString title = host.window.windowTitle();
    EXPECT_FALSE(host.window.OpenLibrary("no/such/library.dat"));
    EXPECT_EQ(host.TakeMessage(), "library.dat cannot be opened: Path not found.");
    EXPECT_EQ(host.window.windowTitle(), title);
}

TEST(MainWindow, MovesTheDataOfDraggedWells) {
    OpenedWindow host;
    Plate& plate = host.Control();
    Drag(plate, 0, 1); // selects both
    plate.Text(0, "first");
    plate.SetVolume(1, 3);
    Drag(plate, 0, static_cast<Integer>(plate.Cols + 1));
    EXPECT_EQ(plate.Text(0), "");
    EXPECT_EQ(plate.Text(static_cast<Integer>(plate.Cols + 1)), "first");
    EXPECT_EQ(plate.GetVolume(static_cast<Integer>(plate.Cols + 2)), 3);
    EXPECT_EQ(host.Find<EventLog>().Text(), "   1  SelectMultipleWells\n"
                                            "   2  DragMove: Button 1, Shift 0, dC 1, dR 1");
}

TEST(MainWindow, RefusesAMoveOffThePlate) {
    OpenedWindow host;
    Plate& plate = host.Control();
    Drag(plate, 0, 1);
    plate.Text(0, "first");
    const auto before = host.AllWells();
    Drag(plate, 0, static_cast<Integer>(plate.Cols - 1)); // the second well would leave
    EXPECT_EQ(host.AllWells(), before);
    EXPECT_EQ(host.window.statusBar()->currentMessage(),
              "Nothing was moved: some of the wells would leave the plate.");
}

TEST(MainWindow, KeepsTheWellsOfAPlateWhileOthersAreShown) {
    OpenedWindow host;
    PlateSession& session = host.window.Session();
    session.ColorByVolume(true);
    session.Edit([&] {
        host.Control().SetVolume(2, 8);
        host.Control().IsDefined(3, true);
    });
    const auto before = host.AllWells();
    const QString plate = QString::fromStdString(host.Control().PlateName());
    ASSERT_TRUE(session.Open(ZORVANE_SAMPLE_LIBRARY, "Batch_96"));
    EXPECT_EQ(host.Control().GetVolume(2), 0);
    ASSERT_TRUE(session.Open(ZORVANE_SAMPLE_LIBRARY, plate));
    EXPECT_EQ(host.AllWells(), before);
}

TEST(MainWindow, ImportsWhatItHasExported) {
    OpenedWindow host;
    PlateSession& session = host.window.Session();
    session.Edit([&] {
        host.Control().Text(0, "Ärger, \"quoted\"");
        host.Control().SetVolume(1, 2.5F);
    });
    const auto before = host.AllWells();
    const TempFile file;
    const QString path = QString::fromStdString(file.Path());
    EXPECT_EQ(host.window.ExportData(path), "");
    session.Edit([&] { host.Control().ClearSubWells("Drop1"); });
    session.Edit([&] { host.Control().Text(0, ""); });
    EXPECT_EQ(host.window.ImportData(path), "");
    EXPECT_EQ(host.AllWells(), before);
}

TEST(MainWindow, ChangesNothingForAFileThatFailsHalfWay) {
    OpenedWindow host;
    const auto before = host.AllWells();
    const TempFile file("well,sub-well,text\nA1,Drop1,good\nA2,Drop1,good\nA3,Drop9,bad\n");
    const QString failure = host.window.ImportData(QString::fromStdString(file.Path()));
    EXPECT_TRUE(failure.contains("line 4, column 2 (sub-well): the plate has no sub-well "
                                 "\"Drop9\".\n\nNothing was changed."))
        << failure.toStdString();
    EXPECT_EQ(host.AllWells(), before);
    EXPECT_FALSE(host.window.ImportData("no/such/file.csv").isEmpty());
    EXPECT_FALSE(host.window.ExportData("no/such/file.csv").isEmpty());
}

TEST(WellInspector, FollowsTheKeysAndEditsTheCurrentWell) {
    OpenedWindow host;
    Plate& plate = host.Control();
    auto& inspector = host.Find<WellInspector>();
    auto& volume = *inspector.findChild<QDoubleSpinBox*>();
    plate.SetVolume(1, 7.5F);
    QTest::keyClick(&host.window.Session().Widget(), Qt::Key_Right);
    QApplication::processEvents();
    EXPECT_EQ(volume.value(), 7.5);

    volume.setValue(9);
    EXPECT_EQ(plate.GetVolume(1), 9);
    EXPECT_EQ(plate.GetVolume(0), 0);

    // An error code shows on a well that is defined, whichever comes first.
    inspector.findChild<QCheckBox*>()->click();
    inspector.findChild<QSpinBox*>()->setValue(4);
    EXPECT_EQ(plate.Elements().WellBottom[1].fill, plate.ErrorWellColor);
    inspector.findChild<QSpinBox*>()->setValue(0);
    EXPECT_EQ(plate.Elements().WellBottom[1].fill, plate.DefinedWellColor);
}

} // namespace
} // namespace zorvane
