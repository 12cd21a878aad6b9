#include "Form.h"

#include <QSignalSpy>
#include <QToolTip>

namespace zorvane {

namespace {

using Aid = PlateWidget::Aid;

/// The selected wells by number.
std::vector<Integer> Selected(const Plate& plate) {
    std::vector<Integer> wells;
    for (Integer well = 0; well < plate.TotalWells(); ++well)
        if (plate.IsSelected(well)) wells.push_back(well);
    return wells;
}

/// The middle of the legend of row B or column 2.
QPoint LegendPlace(const Form& form, const char* caption) {
    for (const Label& label : form.widget.plate().Elements().lblWell)
        if (label.caption == caption) return ToPixels(label.box).center().toPoint();
    ADD_FAILURE() << caption;
    return {};
}

QString ToolTipAt(Form& form, int well) {
    QTest::mouseMove(&form.widget, form.At(well));
    QHelpEvent help(QEvent::ToolTip, form.At(well), form.widget.mapToGlobal(form.At(well)));
    QApplication::sendEvent(&form.widget, &help);
    return QToolTip::text();
}

} // namespace

TEST(PlateWidgetAids, AreOffAtFirst) {
    Form form;
    QTest::mouseClick(&form.widget, Qt::LeftButton, {}, form.At(0));
    QTest::mouseClick(&form.widget, Qt::LeftButton, Qt::ShiftModifier, form.At(8));
    EXPECT_EQ(Selected(form.widget.plate()), (std::vector<Integer>{8}));
    form.Signals();
    QTest::mouseClick(&form.widget, Qt::LeftButton, {}, LegendPlace(form, "B"));
    EXPECT_EQ(form.Signals().substr(0, 12), "mousePressed");
    QTest::keyClick(&form.widget, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&form.widget, Qt::Key_Escape);
    EXPECT_EQ(Selected(form.widget.plate()), (std::vector<Integer>{8}));
}

TEST(PlateWidgetAids, ShiftExtendsFromTheWellThatWasCurrent) {
    Form form;
    form.widget.setAid(Aid::ShiftExtendsSelection);
    Plate& plate = form.widget.plate();
    QTest::mouseClick(&form.widget, Qt::LeftButton, {}, form.At(1));
    form.Signals();
    const QSignalSpy aided(&form.widget, &PlateWidget::selectionAided);
    QTest::mouseClick(&form.widget, Qt::LeftButton, Qt::ShiftModifier, form.At(8));
    EXPECT_EQ(Selected(plate), (std::vector<Integer>{1, 2, 7, 8}));
    QTest::mouseClick(&form.widget, Qt::LeftButton, Qt::ShiftModifier, form.At(0));
    EXPECT_EQ(Selected(plate), (std::vector<Integer>{0, 1}));
    EXPECT_EQ(plate.NSelected(), 2);
    EXPECT_EQ(plate.CurrentWell(), 0);
    EXPECT_EQ(aided.size(), 2);
    EXPECT_EQ(form.Signals(), "") << "the control saw nothing of it";

    QTest::keyClick(&form.widget, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Selected(plate), (std::vector<Integer>{0, 1, 6, 7}));
    QTest::keyClick(&form.widget, Qt::Key_Right);
    QTest::keyClick(&form.widget, Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(Selected(plate), (std::vector<Integer>{0, 1, 6, 7, 8}));
}

TEST(PlateWidgetAids, KeysAndLegendsSelect) {
    Form form;
    form.widget.setAids(Aid::CtrlASelectsAll | Aid::EscapeClearsSelection |
                        Aid::LegendClickSelects);
    Plate& plate = form.widget.plate();
    QTest::keyClick(&form.widget, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(plate.NSelected(), 48);
    QTest::keyClick(&form.widget, Qt::Key_Escape);
    EXPECT_EQ(Selected(plate), std::vector<Integer>{});
    EXPECT_EQ(plate.NSelected(), 0);
    EXPECT_TRUE(form.widget.multipleSelect());

    QTest::mouseClick(&form.widget, Qt::LeftButton, {}, LegendPlace(form, "2"));
    EXPECT_EQ(Selected(plate), (std::vector<Integer>{1, 7, 13, 19}));
    QTest::mouseClick(&form.widget, Qt::LeftButton, {}, LegendPlace(form, "D"));
    EXPECT_EQ(Selected(plate), (std::vector<Integer>{18, 19, 20, 21, 22, 23}));
    QTest::mouseClick(&form.widget, Qt::LeftButton, Qt::ControlModifier, LegendPlace(form, "1"));
    EXPECT_EQ(plate.NSelected(), 9);
}

TEST(PlateWidgetAids, NeedMultipleSelectToSelectSeveral) {
    Form form;
    form.widget.setAids(Aid::ShiftExtendsSelection | Aid::CtrlASelectsAll |
                        Aid::LegendClickSelects);
    form.widget.setMultipleSelect(false);
    QTest::mouseClick(&form.widget, Qt::LeftButton, {}, form.At(1));
    QTest::mouseClick(&form.widget, Qt::LeftButton, Qt::ShiftModifier, form.At(8));
    QTest::keyClick(&form.widget, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&form.widget, Qt::Key_A, Qt::ControlModifier);
    QTest::mouseClick(&form.widget, Qt::LeftButton, {}, LegendPlace(form, "2"));
    EXPECT_EQ(Selected(form.widget.plate()), (std::vector<Integer>{8}));
}

TEST(PlateWidgetAids, AreHarmlessOnAPlateWithoutWells) {
    Form form;
    form.widget.setAids(PlateWidget::Aids::fromInt(0x7F));
    form.widget.plate().PlateClassText("PLATE Bare\r\nXOVERALL 70\r\nYOVERALL 50\r\n");
    QTest::mouseMove(&form.widget, {60, 60});
    QTest::keyClick(&form.widget, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&form.widget, Qt::Key_Escape);
    QTest::keyClick(&form.widget, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_FALSE(form.Picture().isNull());
    EXPECT_EQ(ToolTipAt(form, 0), "");
}

TEST(PlateWidgetAids, TooltipsTellWhatIsKnownOfAWell) {
    Form form;
    form.widget.setAid(Aid::RichToolTips);
    Plate& plate = form.widget.plate();
    plate.SetVolume(8, 2.5F);
    plate.Text(8, "lysozyme");
    plate.ErrorCode(8, 3);
    EXPECT_EQ(ToolTipAt(form, 8),
              QString("B3, Drop\nVolume %1 µl\nlysozyme\nError 3").arg(QLocale().toString(2.5)));
    EXPECT_EQ(ToolTipAt(form, 24), "A1, Reservoir");
}

TEST(PlateWidgetAids, HintsShowAndGo) {
    Form form;
    Plate& plate = form.widget.plate();
    plate.ErrorWellColor = 0x0000FF;
    plate.ErrorCode(8, 3);
    plate.IsDefined(8, true);
    const QImage plain = form.Picture();
    form.widget.setAid(Aid::ErrorMarks);
    const QImage marked = form.Picture();
    EXPECT_NE(marked, plain);
    plate.ErrorCode(8, 0);
    EXPECT_EQ(form.Picture(), plain) << "no error, no mark";

    form.widget.setAids(Aid::HighlightLegends);
    QTest::mouseMove(&form.widget, form.At(9));
    EXPECT_NE(form.Picture(), plain);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&form.widget, &leave);
    EXPECT_EQ(form.Picture(), plain);
}

} // namespace zorvane
