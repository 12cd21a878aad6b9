#include "Form.h"
#include "Test.h"

#include <QHBoxLayout>
#include <QSignalSpy>

namespace zorvane {

TEST(PlateWidget, TakesTheSizeThatItsPlateAsksFor) {
    Form form;
    // 70 by 50 mm at 100 units, and half the height of the button below.
    EXPECT_EQ(form.widget.size(), QSize(467, 342));
    EXPECT_EQ(form.widget.sizeHint(), form.widget.size());
    form.widget.setDrawingScale(60);
    EXPECT_EQ(form.widget.size(), QSize(280, 208));
}

TEST(PlateWidget, LeavesItsSizeToALayoutThatHoldsIt) {
    const TestProcess process;
    QWidget window;
    auto* outer = new QVBoxLayout(&window);
    auto* inner = new QHBoxLayout;
    outer->addLayout(inner);
    auto* widget = new PlateWidget;
    inner->addWidget(widget);
    window.resize(700, 500);
    window.show();
    const QSize given = widget->size();
    widget->plate().FixedSize = false;
    widget->plate().PlateClassText(kPlateText);
    EXPECT_EQ(widget->size(), given);
    EXPECT_EQ(widget->sizeHint(), QSize(234, 175));
}

TEST(PlateWidget, FitsAPlateOfFixedSizeAnewOnlyWhenAskedTo) {
    Form form;
    form.widget.setFixedSize(true);
    form.widget.resize(600, 420);
    const double scale = form.widget.drawingScale();
    form.widget.setRefitOnResize(true);
    const Rect area = form.widget.plate().Elements().fraPlate.box;
    EXPECT_GT(form.widget.drawingScale(), scale);
    EXPECT_FLOAT_EQ(area.height, form.widget.plate().DrawingScale() * 50);
    EXPECT_LE(area.Bottom(), ToUnits(form.widget.height()));
    EXPECT_EQ(form.widget.size(), QSize(600, 420));
    form.widget.resize(300, 210);
    EXPECT_LT(form.widget.drawingScale(), scale);
}

TEST(PlateWidget, CentresAPlateOfFixedSize) {
    Form form;
    form.widget.setFixedSize(true);
    form.widget.resize(600, 600);
    form.widget.setHorizontalCentred(true);
    const Surface& surface = form.widget.plate().Elements();
    const Rect& area = surface.fraPlate.box;
    EXPECT_EQ(area.left, (ToUnits(600) - area.width) / 2);
    EXPECT_EQ(area.top, 0);
    form.widget.setVerticalCentred(true);
    EXPECT_EQ(area.top, (ToUnits(600) - area.height - surface.cmdData.box.height) / 2);
}

TEST(PlateWidget, TellsWhatHasChanged) {
    Form form;
    Plate& plate = form.widget.plate();
    const QSignalSpy current(&form.widget, &PlateWidget::currentWellChanged);
    const QSignalSpy selection(&form.widget, &PlateWidget::selectionChanged);
    const QSignalSpy shown(&form.widget, &PlateWidget::plateChanged);
    plate.CurrentWell(5);
    ASSERT_EQ(current.size(), 1);
    EXPECT_EQ(current[0], QList<QVariant>{5});
    plate.SelectWell(3, true);
    EXPECT_EQ(selection.size(), 1);
    const QSignalSpy data(&form.widget, &PlateWidget::wellDataChanged);
    plate.Text(4, "lysozyme");
    ASSERT_EQ(data.size(), 1);
    EXPECT_EQ(data[0], (QList<QVariant>{4, 4}));
    EXPECT_EQ(shown.size(), 0);
    plate.PlateClassText(kPlateText);
    EXPECT_EQ(shown.size(), 1);
}

TEST(PlateWidget, LoadsFromItsLibraryAndSaysWhenItCannot) {
    TestProcess process;
    const TempFile library(std::string(kPlateText) + "PLATE Other\r\nROWS 1\r\nCOLS 1\r\n");
    PlateWidget widget;
    widget.setFileName(QString::fromStdString(library.Path()));
    widget.setPlateName("demo");
    EXPECT_EQ(widget.plateName(), "Demo");
    EXPECT_EQ(widget.plate().TotalWells(), 48);

    process.messages.onUnexpected = nullptr;
    widget.setPlateName("missing");
    ASSERT_EQ(process.messages.shown.size(), 1U);
    EXPECT_NE(process.messages.shown[0].prompt.find("missing"), String::npos);
    EXPECT_EQ(widget.plateName(), "Demo");
}

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

TEST(PlateWidget, ColoursArePropertiesAndAnInvalidOneBringsBackTheFirst) {
    Form form;
    const auto colour = [&](const char* name, Long first, auto read) {
        EXPECT_TRUE(form.widget.setProperty(name, QColor(1, 2, 3))) << name;
        EXPECT_EQ(read(form.widget.plate()), 0x030201) << name;
        EXPECT_EQ(form.widget.property(name), QColor(1, 2, 3)) << name;
        form.widget.setProperty(name, QColor());
        EXPECT_EQ(read(form.widget.plate()), first) << name;
    };
    colour("defaultRimColor", 0xE0E0E0, [](Plate& p) { return p.DefaultRimColor(); });
    colour("defaultWellColor", 0xE0E0E0, [](Plate& p) { return p.DefaultWellColor(); });
    colour("defaultSelectColor", 0x808080, [](Plate& p) { return p.DefaultSelectColor; });
    colour("definedWellColor", 0, [](Plate& p) { return p.DefinedWellColor; });
    colour("errorWellColor", 0, [](Plate& p) { return p.ErrorWellColor; });
    colour("selectedColor", kButtonShadow, [](Plate& p) { return p.SelectedColor; });
    colour("deselectedColor", kButtonFace, [](Plate& p) { return p.DeselectedColor; });
}

} // namespace zorvane
