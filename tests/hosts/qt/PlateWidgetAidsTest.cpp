#include "Form.h"

#include <QSignalSpy>
#include <QToolTip>

namespace zorvane {

namespace {

using Aid = PlateWidget::Aid;

/// The selected wells by number.
String Selected(const Form& form) {
    String wells;
    for (Integer well = 0; well < form.widget.plate().TotalWells(); ++well)
        if (form.widget.plate().IsSelected(well)) wells += " " + std::to_string(well);
    return wells;
}

void Click(Form& form, QPoint place, Qt::KeyboardModifiers keys = {}) {
    QTest::mouseClick(&form.widget, Qt::LeftButton, keys, place);
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

TEST(PlateWidgetAids, ShiftExtendsFromTheWellThatWasCurrent) {
    Form form;
    form.widget.setAid(Aid::ShiftExtendsSelection);
    Plate& plate = form.widget.plate();
    Click(form, form.At(1));
    form.Signals();
    const QSignalSpy aided(&form.widget, &PlateWidget::selectionAided);
    Click(form, form.At(8), Qt::ShiftModifier);
    EXPECT_EQ(Selected(form), " 1 2 7 8");
    Click(form, form.At(0), Qt::ShiftModifier);
    EXPECT_EQ(Selected(form), " 0 1");
    EXPECT_EQ(plate.NSelected(), 2);
    EXPECT_EQ(plate.CurrentWell(), 0);
    EXPECT_EQ(aided.size(), 2);
    EXPECT_EQ(form.Signals(), "") << "the control saw nothing of it";

    QTest::keyClick(&form.widget, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Selected(form), " 0 1 6 7");
    QTest::keyClick(&form.widget, Qt::Key_Right);
    QTest::keyClick(&form.widget, Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(Selected(form), " 0 1 6 7 8");
}

TEST(PlateWidgetAids, KeysAndLegendsSelect) {
    Form form;
    form.widget.setAids(Aid::CtrlASelectsAll | Aid::EscapeClearsSelection |
                        Aid::LegendClickSelects);
    Plate& plate = form.widget.plate();
    QTest::keyClick(&form.widget, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(plate.NSelected(), 48);
    QTest::keyClick(&form.widget, Qt::Key_Escape);
    EXPECT_EQ(Selected(form), "");
    EXPECT_EQ(plate.NSelected(), 0);
    EXPECT_TRUE(form.widget.multipleSelect());

    Click(form, LegendPlace(form, "2"));
    EXPECT_EQ(Selected(form), " 1 7 13 19");
    Click(form, LegendPlace(form, "D"));
    EXPECT_EQ(Selected(form), " 18 19 20 21 22 23");
    Click(form, LegendPlace(form, "1"), Qt::ControlModifier);
    EXPECT_EQ(plate.NSelected(), 9);
}

TEST(PlateWidgetAids, NeedMultipleSelectToSelectSeveral) {
    Form form;
    form.widget.setAids(Aid::ShiftExtendsSelection | Aid::CtrlASelectsAll |
                        Aid::LegendClickSelects);
    form.widget.setMultipleSelect(false);
    Click(form, form.At(1));
    Click(form, form.At(8), Qt::ShiftModifier);
    QTest::keyClick(&form.widget, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&form.widget, Qt::Key_A, Qt::ControlModifier);
    Click(form, LegendPlace(form, "2"));
    EXPECT_EQ(Selected(form), " 8");
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

TEST(PlateWidgetAids, LegendsAreLitWhileThePointerIsOverAWell) {
    Form form;
    form.widget.setAid(Aid::HighlightLegends);
    const QImage plain = form.Picture();
    QTest::mouseMove(&form.widget, form.At(9));
    EXPECT_NE(form.Picture(), plain);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&form.widget, &leave);
    EXPECT_EQ(form.Picture(), plain);
}

} // namespace zorvane
