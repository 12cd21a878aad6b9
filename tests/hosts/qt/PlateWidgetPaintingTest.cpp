#include "Form.h"

#include <QPainter>

namespace zorvane {

TEST(PlateWidgetPainting, OutlinesLeaveNoTrace) {
    Form form;
    form.widget.plate().SelectBoxEnabled(true);
    form.Press(0);
    const QImage pressed = form.Picture();
    form.MoveTo(8);
    EXPECT_NE(form.Picture(), pressed) << "the band shows";
    form.MoveTo(16);
    form.MoveTo(0);
    EXPECT_EQ(form.Picture(), pressed) << "no band around a single well";
    form.MoveTo(8);
    form.Release(8);

    form.widget.setDragDrop(true);
    const QImage selected = form.Picture();
    form.Press(8);
    form.MoveTo(9);
    const QImage dragged = form.Picture();
    EXPECT_NE(dragged, selected) << "the drag outline shows";
    form.widget.plate().WellAnnotation(20, "done");
    form.widget.plate().WellAnnotation(20, "");
    EXPECT_EQ(form.Picture(), dragged) << "also where the host paints meanwhile";
    form.MoveTo(16);
    form.MoveTo(9);
    EXPECT_EQ(form.Picture(), dragged);
    form.widget.plate().SelectBoxEnabled(false);
    form.Release(9);
    form.widget.plate().SelectBoxEnabled(true);
    QImage after = form.Picture();
    form.widget.plate().SelectWell(0, true);
    EXPECT_EQ(form.Picture(), after) << "nothing else was left to wipe";
}

TEST(PlateWidgetPainting, OnlyTheChangedWellIsPaintedAgain) {
    Form form;
    QRegion painted;
    struct Watch : QObject {
        explicit Watch(QRegion& area) : region(area) {}
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::Paint)
                region |= static_cast<QPaintEvent*>(event)->region();
            return false;
        }
        QRegion& region;
    } watch(painted);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&form.widget));
    QCoreApplication::processEvents();
    form.widget.installEventFilter(&watch);
    painted = {};
    form.widget.plate().IsDefined(8, true);
    QTest::qWait(20);
    const QRect well(form.At(8) - QPoint(13, 13), QSize(26, 26));
    EXPECT_FALSE(painted.isEmpty());
    EXPECT_TRUE(well.contains(painted.boundingRect())) << painted.boundingRect().width();
}

} // namespace zorvane
