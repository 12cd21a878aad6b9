#include "Form.h"

#include <QSignalSpy>

#include <stdexcept>

namespace zorvane {

TEST(PlateWidget, ANewOneLoadsTheFirstPlateOnceShown) {
    TestProcess process;
    const TempFile library(
        "PLATE No_Plate\r\nROWS 1\r\nCOLS 1\r\nXPITCH 9\r\nYPITCH 9\r\n"
        "XOVERALL 20\r\nYOVERALL 20\r\nWELL A\r\nWELLSIZEX 4\r\nWELLSIZEY 4\r\n");
    PlateWidget widget;
    widget.setFileName(QString::fromStdString(library.Path()));
    EXPECT_EQ(widget.plateName(), "");
    widget.show();
    EXPECT_EQ(widget.plateName(), "No_Plate");
}

TEST(PlateWidget, FailuresReachTheHostOrTheOperatorButNotTheEventLoop) {
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
}

} // namespace zorvane
