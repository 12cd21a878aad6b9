#include "Form.h"

#include <QAccessible>

namespace zorvane {

TEST(PlateAccessible, WellsTellWhereTheyAreWhatTheyHoldAndWhetherSelected) {
    Form form;
    Plate& plate = form.widget.plate();
    plate.Text(8, "lysozyme");
    plate.ErrorCode(8, 3);
    plate.WellAnnotation(8, "Tip 1");
    QApplication::setActiveWindow(&form.widget);
    form.widget.setFocus();
    QTest::mouseClick(&form.widget, Qt::LeftButton, {}, form.At(8));

    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&form.widget);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->text(QAccessible::Name), "Demo");
    EXPECT_EQ(list->childCount(), 50) << "the wells, the details button and its panel";
    EXPECT_EQ(list->indexOfChild(list->child(48)), 48);

    QAccessibleInterface* well = list->child(8);
    EXPECT_EQ(list->indexOfChild(well), 8);
    EXPECT_EQ(well->text(QAccessible::Name), "B3, Drop");
    EXPECT_EQ(well->text(QAccessible::Value), "Tip 1");
    EXPECT_EQ(well->text(QAccessible::Description), "lysozyme\nError 3");
    EXPECT_TRUE(well->state().selected);
    EXPECT_TRUE(well->state().focused);
    EXPECT_FALSE(list->child(9)->state().selected);
    EXPECT_EQ(list->focusChild(), well);
    QTest::keyClick(&form.widget, Qt::Key_Right);
    EXPECT_EQ(list->focusChild(), list->child(9));
    const QPoint centre = well->rect().center();
    EXPECT_EQ(list->childAt(centre.x(), centre.y()), well);

    plate.PlateClassText("PLATE Bare\r\nXOVERALL 70\r\nYOVERALL 50\r\n");
    EXPECT_FALSE(well->isValid());
    EXPECT_EQ(well->text(QAccessible::Name), "");
    EXPECT_EQ(list->childCount(), 2);
}

} // namespace zorvane
