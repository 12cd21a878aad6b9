#include "Form.h"
#include "runtime/RuntimeError.h"

#include <QSignalSpy>
#include <QToolTip>

#include <stdexcept>

namespace zorvane {

// Well numbers on the plate of the form: Drop in row 1, column 2 is 8, in row 2, column 4 is 16.

TEST(PlateWidgetInput, PositionsAreDrawingUnitsInThePlateAreaOnEveryScreen) {
    Form form;
    form.widget.plate().FixedSize = true;
    form.widget.plate().HorizontalCentred = true;
    form.widget.resize(form.widget.width() + 200, form.widget.height());
    form.widget.plate().DrawingScale(60);
    form.widget.plate().DrawingScale(form.widget.plate().DrawingScale());
    const Rect area = form.widget.plate().Elements().fraPlate.box;
    ASSERT_GT(area.left, 300);

    const QPoint place = ToPixels(area).topLeft().toPoint() + QPoint(20, 10);
    QTest::mousePress(&form.widget, Qt::RightButton, Qt::ShiftModifier | Qt::AltModifier, place);
    const QString expected = QString("mousePressed 2 5 %1 %2")
                                 .arg(ToUnits(place.x()) - area.left)
                                 .arg(ToUnits(place.y()));
    EXPECT_EQ(form.Signals(), expected.toStdString());
    QTest::mousePress(&form.widget, Qt::MiddleButton, {}, place);
    EXPECT_EQ(form.Signals().substr(0, 16), "mousePressed 4 0");
    QTest::mousePress(&form.widget, Qt::BackButton, {}, place);
    EXPECT_EQ(form.Signals(), "");
}

TEST(PlateWidgetInput, AGestureEndsWhenItsReleaseWasLost) {
    Form form;
    form.Press(0);
    form.MoveTo(8);
    QMouseEvent move(QEvent::MouseMove, form.At(8), form.widget.mapToGlobal(form.At(8)),
                     Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&form.widget, &move);
    EXPECT_EQ(form.Signals(), "multipleWellsSelected");
}

TEST(PlateWidgetInput, APressTakesTheFocusUnlessTheMouseIsDisabled) {
    Form form;
    QApplication::setActiveWindow(&form.widget);
    for (const bool enabled : {false, true}) {
        form.widget.setMouseEnabled(enabled);
        EXPECT_EQ(form.widget.findChild<QPushButton*>()->isEnabled(), enabled);
        form.widget.clearFocus();
        form.Press(8);
        EXPECT_EQ(form.widget.hasFocus(), enabled);
        form.Release(8);
        EXPECT_EQ(form.Signals(), enabled ? "wellSelected 8, clicked" : "");
    }
}

TEST(PlateWidgetInput, ThePointerAndTheTooltipTellWhatIsUnderThem) {
    Form form;
    form.widget.plate().Text(8, "<b>lysozyme</b>");
    form.widget.setDragDrop(true);
    QTest::mouseClick(&form.widget, Qt::LeftButton, {}, form.At(8));
    QTest::mouseMove(&form.widget, form.At(8));
    EXPECT_EQ(form.widget.cursor().shape(), Qt::SizeAllCursor);
    QTest::mouseMove(&form.widget, form.At(9));
    EXPECT_EQ(form.widget.cursor().shape(), Qt::ArrowCursor);
    QTest::mouseMove(&form.widget, form.At(8));
    QHelpEvent help(QEvent::ToolTip, form.At(8), form.widget.mapToGlobal(form.At(8)));
    QApplication::sendEvent(&form.widget, &help);
    EXPECT_EQ(QToolTip::text(), "&lt;b&gt;lysozyme&lt;/b&gt;");
}

TEST(PlateWidgetInput, TheDataButtonOpensThePanel) {
    Form form;
    auto* button = form.widget.findChild<QPushButton*>();
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->geometry(), QRect(8, 16, 16, 16));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(form.widget.plate().DataVisible());
    QTest::mouseClick(&form.widget, Qt::LeftButton, {}, {40, 100});
    EXPECT_EQ(form.Signals(), "clicked") << "a click on the panel";
}

TEST(PlateWidgetInput, FailuresReachTheHostOrTheOperatorButNotTheEventLoop) {
    Form form;
    QObject::connect(&form.widget, &PlateWidget::clicked,
                     [] { throw RuntimeError(7, "Host", "No room"); });
    form.process.messages.Expect("No room");
    QTest::mouseClick(&form.widget, Qt::LeftButton, {}, form.At(8));

    QObject::connect(&form.widget, &PlateWidget::wellSelected,
                     [] { throw std::logic_error("not mine"); });
    QSignalSpy failures(&form.widget, &PlateWidget::failed);
    QTest::mouseClick(&form.widget, Qt::LeftButton, {}, form.At(9));
    ASSERT_EQ(failures.size(), 2);
    EXPECT_EQ(failures[0], (QList<QVariant>{0, "", "not mine"}));
    EXPECT_EQ(failures[1], (QList<QVariant>{7, "Host", "No room"}));

    // A plate without a pitch cannot tell how far a drag went.
    form.widget.plate().PlateClassText("PLATE Flat\r\nROWS 1\r\nCOLS 1\r\nXPITCH 0\r\nYPITCH 0\r\n"
                                       "XOVERALL 70\r\nYOVERALL 50\r\nWELL A\r\n");
    QTest::mousePress(&form.widget, Qt::LeftButton, {}, {100, 100});
    QTest::mouseRelease(&form.widget, Qt::LeftButton, {}, {100, 100});
    ASSERT_EQ(failures.size(), 4);
    EXPECT_EQ(failures[2], (QList<QVariant>{11, "Zorvane", "Division by zero"}));
}

} // namespace zorvane
