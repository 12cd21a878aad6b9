#include "Form.h"

#include <QAction>
#include <QDockWidget>
#include <QGraphicsView>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QPointer>
#include <QScrollArea>
#include <QSettings>
#include <QSignalSpy>
#include <QSplitter>

namespace zorvane {
namespace {

/// A window of some kind with a widget in it.
std::unique_ptr<QWidget> Holding(const QString& kind, PlateWidget& widget) {
    if (kind == "layout") {
        auto window = std::make_unique<QWidget>();
        auto* const outer = new QVBoxLayout(window.get());
        auto* const inner = new QHBoxLayout;
        outer->addLayout(inner);
        inner->addWidget(&widget);
        return window;
    }
    if (kind == "splitter") {
        auto window = std::make_unique<QSplitter>();
        window->addWidget(&widget);
        return window;
    }
    if (kind == "scene") {
        auto window = std::make_unique<QGraphicsView>();
        window->setScene(new QGraphicsScene(window.get()));
        window->scene()->addWidget(&widget);
        return window;
    }
    auto window = std::make_unique<QScrollArea>();
    window->setWidgetResizable(kind == "resizing area");
    window->setWidget(&widget);
    return window;
}

TEST(Embedding, ThePanelOpensAndClosesWithinWhatHoldsTheWidget) {
    for (const auto& [kind, decides] : {std::pair{"layout", true},
                                        {"splitter", true},
                                        {"resizing area", true},
                                        {"area", false},
                                        {"scene", false}}) {
        SCOPED_TRACE(kind);
        const TestProcess process;
        auto& widget = *new PlateWidget;
        widget.setPlateClassText(kPlateText);
        const auto window = Holding(kind, widget);
        window->resize(500, 250); // lower than the panel
        window->show();
        QApplication::processEvents();
        const QSize before = widget.size();
        widget.setDataVisible(true);
        QApplication::processEvents();
        EXPECT_TRUE(!decides || widget.size() == before);
        EXPECT_GE(widget.width(), before.width()) << "nothing of the plate is cut off";
        EXPECT_GE(widget.height(), before.height());
        widget.setDataVisible(false);
        QApplication::processEvents();
        EXPECT_EQ(widget.size(), before);
        widget.setFixedSize(false);
        widget.setDrawingScale(50);
        EXPECT_EQ(widget.size(), decides ? before : QSize(234, 175));
        EXPECT_EQ(widget.sizeHint(), QSize(234, 175));
    }
}

TEST(Embedding, ADetachedPanelLeavesThePlateAlone) {
    const TestProcess process;
    for (const bool dockGoesFirst : {true, false}) {
        QMainWindow window;
        auto* const widget = new PlateWidget;
        widget->setPlateClassText(kPlateText);
        window.setCentralWidget(widget);
        widget->setDetailsDetached(true);
        auto* const dock = new QDockWidget(&window);
        dock->setWidget(widget->detailsPanel());
        window.addDockWidget(Qt::RightDockWidgetArea, dock);
        window.resize(700, 500);
        window.show();
        QApplication::processEvents();
        const QSize before = widget->size();
        const QImage picture = widget->grab().toImage();
        widget->setDataVisible(true);
        QApplication::processEvents();
        EXPECT_EQ(widget->size(), before);
        EXPECT_EQ(widget->grab().toImage(), picture);
        const QPointer<QWidget> panel = widget->detailsPanel();
        EXPECT_TRUE(panel->findChild<QGroupBox*>()->isVisible());
        delete (dockGoesFirst ? static_cast<QWidget*>(dock) : widget);
        EXPECT_EQ(panel, nullptr);
        EXPECT_TRUE(!dockGoesFirst || !widget->detailsPanel());
    }
}

TEST(Embedding, SettingsThatDifferAreKeptAndComeBack) {
    const TestProcess process;
    const TempFolder folder;
    const TempFile library(kPlateText);
    const QString file = QString::fromStdString(folder.File("settings.ini"));
    PlateWidget widget;
    widget.setFileName(QString::fromStdString(library.Path()));
    widget.setMultipleSelect(true);
    widget.setSelectedColor(QColor(1, 2, 3));
    widget.setFixedSize(false);
    widget.setDrawingScale(62.5);
    widget.setPlateName("Demo");
    {
        QSettings settings(file, QSettings::IniFormat);
        widget.saveSettings(settings);
        EXPECT_EQ(
            settings.allKeys().join(' '),
            QString("DrawingScale FileName FixedSize MultipleSelect PlateName SelectedColor"));
    }
    QSettings settings(file, QSettings::IniFormat);
    PlateWidget other;
    other.restoreSettings(settings);
    for (const char* name : {"fileName", "multipleSelect", "selectedColor", "fixedSize",
                             "drawingScale", "plateName", "defaultRimColor"})
        EXPECT_EQ(other.property(name), widget.property(name)) << name;

    settings.setValue("FixedSize", "perhaps");
    const QSignalSpy failures(&other, &PlateWidget::failed);
    other.restoreSettings(settings);
    EXPECT_EQ(failures.size(), 1);
}

TEST(Embedding, ALoadAnswersAndSaysWhyNot) {
    TestProcess process;
    const TempFile library(kPlateText);
    const QString path = QString::fromStdString(library.Path());
    PlateWidget widget;
    struct Row {
        const char* plate;
        QString library;
        bool loads;
        const char* why;
    };
    for (const auto& [plate, file, loads, why] :
         {Row{"demo", path, true, ""}, Row{"missing", path, false, "missing"},
          Row{"Demo", "/no/such/library", false, "/no/such/library"}}) {
        QString reason = "as it was";
        EXPECT_EQ(widget.load(plate, file, &reason), loads) << plate;
        EXPECT_TRUE(loads ? reason.isEmpty() : reason.contains(why)) << qPrintable(reason);
        EXPECT_EQ(widget.plateName(), "Demo");
    }
    process.messages.onUnexpected = nullptr;
    EXPECT_FALSE(widget.load("missing", path));
    EXPECT_EQ(process.messages.shown.size(), 1U) << "in a box where nobody listens";
    const QSignalSpy failures(&widget, &PlateWidget::failed);
    EXPECT_FALSE(widget.load("missing", path));
    EXPECT_EQ(failures.size(), 1);
    EXPECT_EQ(process.messages.shown.size(), 1U);
}

TEST(Embedding, MessagesGoToTheHostThatAsksForThem) {
    QStringList messages;
    PlateWidget::setMessageHandler(
        [&](const QString& title, const QString& text) { messages += title + ": " + text; });
    PlateWidget widget;
    widget.setFileName("/no/such/library");
    widget.setPlateName("missing");
    PlateWidget::setMessageHandler({});
    EXPECT_EQ(messages,
              QStringList("Zorvane: Error trying to read \"missing\" from </no/such/library>"));
}

TEST(Embedding, EachPlateIsFittedWhateverWasShownBefore) {
    const TestProcess process;
    const TempFolder folder;
    String library;
    for (const auto& [name, width, height] : {std::tuple{"Chip", "3", "2"},
                                              {"Plate", "127.76", "85.48"},
                                              {"Portrait", "85.48", "200"}}) {
        library += String("PLATE ") + name +
                   "\r\nROWS 1\r\nCOLS 1\r\nXPITCH 1\r\nYPITCH 1\r\nXOVERALL " + width +
                   "\r\nYOVERALL " + height + "\r\nWELL Drop\r\nXOFFSET 1\r\nYOFFSET 1\r\n";
    }
    folder.Put("Plates.Dat", library);
    const QString file = QString::fromStdString(folder.File("Plates.Dat"));
    PlateWidget widget;
    widget.resize(600, 300);
    widget.setRefitOnResize(true);
    widget.show();
    for (const char* const name :
         {"Plate", "Chip", "Plate", "Portrait", "Chip", "Portrait", "Plate"}) {
        QString why;
        ASSERT_TRUE(widget.load(name, file, &why)) << why.toStdString();
        const Rect& frame = widget.plate().Elements().fraPlate.box;
        const Single ratio = widget.plate().xOverall / widget.plate().yOverall;
        EXPECT_NEAR(frame.width / frame.height, ratio, 0.2 * ratio) << name;
        EXPECT_NEAR(std::max(frame.width / 9000, frame.height / 4500), 1, 0.1) << name;
    }
}

TEST(Embedding, ASlotMayDestroyTheWidgetWhileAPlateIsFitted) {
    const TempFolder folder;
    const String chip = "PLATE Chip\r\nROWS 1\r\nCOLS 1\r\nXOVERALL 3\r\nYOVERALL 2\r\n";
    folder.Put("Plates.Dat", chip);
    // Before the plate is loaded, when it is, and in the course of fitting it.
    for (const int changes : {1, 2, 3}) {
        SCOPED_TRACE(changes);
        const TestProcess process;
        const QPointer<PlateWidget> widget = new PlateWidget;
        widget->setPlateClassText(QString::fromStdString(chip));
        widget->setRefitOnResize(true);
        widget->show();
        int left = changes;
        QObject::connect(widget, &PlateWidget::plateChanged, widget, [&] {
            if (--left == 0) delete widget;
        });
        widget->load("Chip", QString::fromStdString(folder.File("Plates.Dat")));
        EXPECT_EQ(widget, nullptr);
        delete widget;
    }
}

TEST(Embedding, ASlotMayDestroyTheWidgetInTheMiddleOfAGesture) {
    const char* const signalNames[] = {
        SIGNAL(mousePressed(int, int, float, float)),
        SIGNAL(mouseReleased(int, int, float, float)),
        SIGNAL(dragMoved(int, int, int, int)),
        SIGNAL(clicked()),
        SIGNAL(doubleClicked()),
        SIGNAL(wellClicked(int)),
        SIGNAL(wellDoubleClicked(int)),
        SIGNAL(wellHovered(int)),
        SIGNAL(wellSelected(int)),
        SIGNAL(currentWellChanged(int)),
        SIGNAL(selectionChanged()),
        SIGNAL(selectionAided()),
    };
    for (const char* const signalName : signalNames) {
        SCOPED_TRACE(signalName);
        const TestProcess process;
        const QPointer<PlateWidget> widget = new PlateWidget;
        widget->setAid(PlateWidget::Aid::ShiftExtendsSelection);
        widget->setPlateClassText(kPlateText);
        widget->plate().MultipleSelect = true;
        widget->setDragDrop(true);
        widget->show();
        const QPointF well = widget->wellRect(8).center();
        const QPointF other = widget->wellRect(0).center();
        struct Step {
            QEvent::Type type;
            QPointF at;
            Qt::MouseButton button;
            Qt::KeyboardModifiers keys;
        };
        auto* const ender = new QAction(widget);
        QObject::connect(widget, signalName, ender, SLOT(trigger()));
        QObject::connect(ender, &QAction::triggered, [&] { delete widget; });
        for (const Step& step : {
                 Step{QEvent::MouseMove, well, Qt::NoButton, {}},
                 Step{QEvent::MouseButtonPress, well, Qt::LeftButton, {}},
                 Step{QEvent::MouseMove, other, Qt::LeftButton, {}},
                 Step{QEvent::MouseMove, well, Qt::LeftButton, {}},
                 Step{QEvent::MouseButtonRelease, well, Qt::LeftButton, {}},
                 Step{QEvent::MouseButtonDblClick, well, Qt::LeftButton, {}},
                 Step{QEvent::MouseButtonRelease, well, Qt::LeftButton, {}},
                 Step{QEvent::MouseButtonPress, well, Qt::LeftButton, {}},
                 Step{QEvent::MouseMove, other, Qt::LeftButton, {}},
                 Step{QEvent::MouseButtonRelease, other, Qt::LeftButton, {}},
                 Step{QEvent::MouseButtonPress, other, Qt::RightButton, {}},
                 Step{QEvent::MouseButtonRelease, other, Qt::RightButton, {}},
                 Step{QEvent::MouseButtonPress, other, Qt::LeftButton, Qt::ShiftModifier},
             }) {
            if (!widget) break;
            const bool moves = step.type == QEvent::MouseMove;
            const bool up = step.type == QEvent::MouseButtonRelease;
            QMouseEvent event(step.type, step.at, widget->mapToGlobal(step.at),
                              moves ? Qt::NoButton : step.button, up ? Qt::NoButton : step.button,
                              step.keys);
            QApplication::sendEvent(widget, &event);
        }
        EXPECT_EQ(widget, nullptr);
        delete widget;
    }
}

} // namespace
} // namespace zorvane
