#include "Form.h"
#include "Golden.h"

#include <QComboBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <stdexcept>

namespace zorvane {
namespace {

/// A window whose panel is open and can be edited.
struct PanelForm : Form {
    PanelForm() {
        widget.setEditEnable(true);
        widget.setDataVisible(true);
        widget.activateWindow();
        QApplication::processEvents();
    }

    template <class Control>
    Control& Find(const char* name) const {
        for (auto* child : widget.findChildren<Control*>())
            if (child->accessibleName() == name && !child->isHidden()) return *child;
        throw std::runtime_error(name);
    }
};

/// Answers the next menu or dialog that opens.
template <class Dialog>
void Answer(std::function<void(Dialog&)> answer) {
    QTimer::singleShot(0, qApp, [answer] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (!dialog) dialog = qobject_cast<Dialog*>(QApplication::activePopupWidget());
        if (!dialog) return Answer<Dialog>(answer);
        answer(*dialog);
    });
}

TEST(PanelMirror, StylesAndFramesAreDrawn) {
    PanelForm form;
    if (form.widget.devicePixelRatio() != 1) GTEST_SKIP() << "the pictures have one pixel a pixel";
    QString pictures;
    for (const Integer page : {Integer{3}, Integer{4}}) {
        form.widget.plate().PageChosen(page);
        auto& style = form.Find<QComboBox>("Style");
        style.setItemText(style.currentIndex(), ""); // fonts differ
        pictures += AsCharacters(style.parentWidget()->grab({88, 32, 80, 24}).toImage());
    }
    auto& style = form.Find<QComboBox>("Style");
    style.setFocus();
    pictures += AsCharacters(style.grab({40, 0, 10, 24}).toImage());
    auto& row = form.Find<QLineEdit>("X offset");
    row.setText("");
    row.setFocus();
    pictures += AsCharacters(row.grab({0, 0, 10, 15}).toImage());
    ExpectGolden(pictures, "panel-style");
}

TEST(PanelMirror, BytesThatAreNoUtf8SurviveAnEdit) {
    PanelForm form;
    Plate& plate = form.widget.plate();
    plate.SetProperty("ROWLABEL", "\xE4");
    plate.PageChosen(kGeneralPage);
    QTest::keyClicks(&form.Find<QLineEdit>("Row Label"), "b");
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
