#include "Form.h"

#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QTimer>

#include <algorithm>

namespace zorvane {
namespace {

/// Answers the next menu or dialog that opens.
template <class Dialog>
void Answer(std::function<void(Dialog&)> answer) {
    auto* const waiting = new QTimer(qApp);
    QObject::connect(waiting, &QTimer::timeout, waiting, [waiting, answer] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (!dialog) dialog = qobject_cast<Dialog*>(QApplication::activePopupWidget());
        if (!dialog) return; // it has not opened yet
        waiting->stop();
        waiting->deleteLater();
        answer(*dialog);
    });
    waiting->start();
}

TEST(PanelMirror, BytesThatAreNoUtf8SurviveAnEdit) {
    Form form;
    form.widget.setEditEnable(true);
    form.widget.setDataVisible(true);
    Plate& plate = form.widget.plate();
    plate.SetProperty("ROWLABEL", "\xE4");
    plate.PageChosen(kGeneralPage);
    for (auto* const row : form.widget.findChildren<QLineEdit*>())
        if (row->accessibleName() == "Row Label") QTest::keyClicks(row, "b");
    EXPECT_EQ(plate.Elements().panel.txtData[2].text, String("\xE4") + "b");
    plate.PlateClassText("PLATE A\r\nWELL Dr\xF6p\r\n");
    plate.PageChosen(kGeneralPage);
    Answer<QInputDialog>([](QInputDialog& dialog) { dialog.accept(); });
    plate.MenuChosen(mnuRenameSubwell);
    EXPECT_EQ(plate.LoadedDefinition().CompoundWell()->Item(1)->WellName(), "Dr\xF6p");
}

TEST(PanelMirror, AWidgetMayBeDestroyedWhileItsMenuOrItsQuestionIsOpen) {
    const TestProcess process;
    for (const int entry : {-1, int{mnuAddNewSubWell}, int{mnuShiftHeight}}) {
        const QPointer<PlateWidget> widget = new PlateWidget;
        widget->plate().PlateClassText(kPlateText);
        widget->plate().PageChosen(kGeneralPage);
        widget->setEditEnable(true);
        widget->setDataVisible(true);
        widget->show();
        Answer<QMenu>([&](QMenu& menu) {
            if (entry < 0) return delete widget;
            Answer<QInputDialog>([&](QInputDialog&) { delete widget; });
            menu.setActiveAction(menu.actions()[entry]);
            QTest::keyClick(&menu, Qt::Key_Return);
        });
        const auto buttons = widget->findChildren<QPushButton*>();
        const auto isMenu = [](auto* button) { return button->text() == "...."; };
        (*std::find_if(buttons.begin(), buttons.end(), isMenu))->click();
        EXPECT_EQ(widget, nullptr) << entry;
    }
}

} // namespace
} // namespace zorvane
