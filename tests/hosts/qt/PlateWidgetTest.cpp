#include "Form.h"
#include "TempFile.h"

#include <QHBoxLayout>

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

TEST(PlateWidget, StaysWithinWhatDrawingUnitsCanHold) {
    const TestProcess process;
    PlateWidget widget;
    widget.resize(5000, 5000);
    EXPECT_EQ(widget.size(), QSize(2184, 2184));
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

    PlateWidget without;
    without.setFileName("nowhere.dat");
    without.show();
    EXPECT_EQ(without.plateName(), "");
}

TEST(PlateWidget, ColoursArePropertiesAndAnInvalidOneBringsBackTheFirst) {
    Form form;
    struct {
        const char* name;
        Long (*read)(const Plate&);
        Long first;
    } const colours[] = {
        {"defaultRimColor", [](const Plate& plate) { return plate.DefaultRimColor(); }, 0xE0E0E0},
        {"defaultWellColor", [](const Plate& plate) { return plate.DefaultWellColor(); }, 0xE0E0E0},
        {"defaultSelectColor", [](const Plate& plate) { return plate.DefaultSelectColor; },
         0x808080},
        {"definedWellColor", [](const Plate& plate) { return plate.DefinedWellColor; }, 0},
        {"errorWellColor", [](const Plate& plate) { return plate.ErrorWellColor; }, 0},
        {"selectedColor", [](const Plate& plate) { return plate.SelectedColor; }, kButtonShadow},
        {"deselectedColor", [](const Plate& plate) { return plate.DeselectedColor; }, kButtonFace},
    };
    for (const auto& colour : colours) {
        SCOPED_TRACE(colour.name);
        EXPECT_TRUE(form.widget.setProperty(colour.name, QColor(1, 2, 3)));
        EXPECT_EQ(colour.read(form.widget.plate()), 0x030201);
        EXPECT_EQ(form.widget.property(colour.name), QColor(1, 2, 3));
        form.widget.setProperty(colour.name, QColor());
        EXPECT_EQ(colour.read(form.widget.plate()), colour.first);
    }
}

} // namespace zorvane
