#include <gtest/gtest.h>

#include <QApplication>
#include <QBuffer>
#include <QColor>
#include <QUiLoader>
#include <QWidget>

#include <memory>

namespace {

constexpr const char* kForm = R"(<ui version="4.0"><class>Form</class>
<widget class="QWidget" name="Form">
 <widget class="zorvane::PlateWidget" name="plate">
  <property name="geometry"><rect><x>0</x><y>0</y><width>500</width><height>360</height></rect></property>
  <property name="fileName"><string notr="true">%1</string></property>
  <property name="defaultSelectColor"><color><red>0</red><green>128</green><blue>255</blue></color></property>
  <property name="multipleSelect"><bool>true</bool></property>
  <property name="aids"><set>zorvane::PlateWidget::CtrlASelectsAll|zorvane::PlateWidget::ErrorMarks</set></property>
  <property name="plateName"><string notr="true">Sitting_96x3</string></property>
 </widget>
</widget></ui>)";

TEST(PlateWidgetPlugin, LoadsAFormWithAPlate) {
    int argc = 0;
    const QApplication app(argc, nullptr);
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QStringLiteral(ZORVANE_PLUGINS));
    ASSERT_TRUE(loader.availableWidgets().contains("zorvane::PlateWidget"));

    QByteArray text = QString::fromUtf8(kForm).arg(QStringLiteral(ZORVANE_LIBRARY)).toUtf8();
    QBuffer buffer(&text);
    const std::unique_ptr<QWidget> form(loader.load(&buffer));
    ASSERT_TRUE(form) << loader.errorString().toStdString();
    const QWidget* const plate = form->findChild<QWidget*>("plate");
    ASSERT_TRUE(plate);
    EXPECT_STREQ(plate->metaObject()->className(), "zorvane::PlateWidget");
    EXPECT_EQ(plate->property("plateName").toString(), "Sitting_96x3");
    EXPECT_EQ(plate->property("defaultSelectColor").value<QColor>(), QColor(0, 128, 255));
    EXPECT_TRUE(plate->property("multipleSelect").toBool());
    EXPECT_EQ(plate->property("aids").toInt(), 0x02 | 0x40);
}

} // namespace
