#include "Form.h"
#include "Golden.h"

#include <QComboBox>
#include <QGroupBox>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTimer>

namespace zorvane {
namespace {

QPushButton* Captioned(const QWidget& widget, const char* text) {
    for (auto* child : widget.findChildren<QPushButton*>())
        if (child->text() == text) return child;
    return nullptr;
}

/// A window whose panel is open and can be edited. "Reservoir" records more than twelve values.
class PanelForm : public Form {
  public:
    PanelForm() {
        String text = kPlateText;
        text.insert(text.find("XPITCH"), "; first\r\n; second\r\n");
        text += "DEPTH 1\r\nVOLUME 2\r\nRIMCENTERX 0\r\nRIMCENTERY 0\r\nMOATDEPTH 3\r\n"
                "MOATRADIUS 4\r\n";
        Plate& plate = widget.plate();
        plate.PlateClassText(text);
        plate.EditEnable(true);
        plate.DataVisible(true);
        widget.activateWindow();
        QApplication::processEvents();
        for (const char* field : {"Area", "Taper", "R0"})
            plate.SetProperty(String("Reservoir.") + field, "5");
    }

    const PanelElements& Panel() const { return widget.plate().Elements().panel; }
    QComboBox& Pages() const { return *Named<QComboBox>("Page"); }
    QComboBox& Style() const { return *Named<QComboBox>("Style"); }
    QPlainTextEdit& Comment() const { return *widget.findChild<QPlainTextEdit*>(); }
    QPushButton& Apply() const { return *Captioned(widget, "Apply Changes"); }
    QPushButton& Menu() const { return *Captioned(widget, "...."); }
    QLineEdit* Row(const char* caption) const { return Named<QLineEdit>(caption); }

    void Turn(const char* page) { Turn(Pages().findText(page)); }
    void Turn(int position) {
        ASSERT_GE(position, 0);
        Pages().setFocus();
        Pages().setCurrentIndex(position);
        emit Pages().activated(position);
    }

    void Retype(QLineEdit& box, const char* text) {
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, text);
    }

    /// Chooses an entry of the next menu.
    void ChooseNext(int entry) {
        Answer<QMenu>([entry](QMenu& menu) {
            menu.setActiveAction(menu.actions()[entry]);
            QTest::keyClick(&menu, Qt::Key_Return);
        });
    }
    /// Answers the next menu or dialog that opens.
    template <class Dialog>
    void Answer(std::function<void(Dialog&)> answer) {
        QTimer::singleShot(0, &widget, [this, answer] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (!dialog) dialog = qobject_cast<Dialog*>(QApplication::activePopupWidget());
            if (!dialog) return Answer<Dialog>(answer);
            answer(*dialog);
        });
    }

  private:
    template <class Widget>
    Widget* Named(const char* name) const {
        for (auto* child : widget.findChildren<Widget*>())
            if (child->accessibleName() == name && !child->isHidden()) return child;
        return nullptr;
    }
};

/// Whether a point in the middle of a widget belongs to it, rather than to one that covers it.
bool IsUncovered(const PanelForm& form, const QWidget& shown) {
    const QPoint middle = shown.mapTo(&form.widget, shown.rect().center());
    return form.widget.rect().contains(middle) && form.widget.childAt(middle) == &shown;
}

QString TextIn(const QWidget& shown) {
    if (const auto* label = qobject_cast<const QLabel*>(&shown)) return label->text();
    if (const auto* edit = qobject_cast<const QLineEdit*>(&shown)) return edit->text();
    if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&shown)) return edit->toPlainText();
    if (const auto* button = qobject_cast<const QPushButton*>(&shown)) return button->text();
    const auto* list = qobject_cast<const QComboBox*>(&shown);
    QStringList entries;
    for (int i = 0; list && i < list->count(); ++i)
        entries += (i == list->currentIndex() ? "*" : "") + list->itemText(i);
    return entries.join('|');
}

/// A line for each control in sight, from back to front.
QString AsText(const PanelForm& form) {
    const auto& scroller = *form.widget.findChild<QScrollArea*>();
    const auto& frame = *form.widget.findChild<QGroupBox*>();
    const auto place = [](const QRect& box) {
        return QString("%1,%2 %3x%4").arg(box.x()).arg(box.y()).arg(box.width()).arg(box.height());
    };
    QString text = QString("%1: %2, view %3, contents %4\n")
                       .arg(frame.title(), place(frame.geometry()), place(scroller.geometry()),
                            place(scroller.widget()->geometry()));
    for (const QObject* const child : scroller.widget()->children()) {
        const auto& shown = *qobject_cast<const QWidget*>(child);
        if (!shown.isVisible()) continue;
        const auto* const edit = qobject_cast<const QLineEdit*>(child);
        const auto* const comment = qobject_cast<const QPlainTextEdit*>(child);
        text += QString("  %1 \"%2\" \"%3\"")
                    .arg(place(shown.geometry()), shown.accessibleName(), TextIn(shown));
        if (!shown.isEnabled()) text += " disabled";
        if (edit && edit->alignment().testFlag(Qt::AlignRight)) text += " right";
        if (comment && comment->isReadOnly()) text += " read-only";
        if (shown.palette().color(QPalette::Base) != form.widget.palette().color(QPalette::Base))
            text += " grey";
        if (qobject_cast<const QLabel*>(child) && shown.autoFillBackground()) text += " opaque";
        text += '\n';
    }
    return text;
}

TEST(PanelMirror, ShowsEachPageWithTheToolkitsControls) {
    PanelForm form;
    Plate& plate = form.widget.plate();
    String text = plate.PlateClassText();
    text.replace(text.find("Demo"), 4, "A&B");
    plate.PlateClassText(text);
    plate.SetProperty("Reservoir.R0", "5");
    plate.DataVisible(true);
    QString pages;
    for (const bool edits : {true, false}) {
        form.widget.setEditEnable(edits);
        for (int page = 0; page < form.Pages().count(); ++page) {
            form.Turn(page);
            pages += AsText(form);
        }
    }
    form.widget.plate().SetDataDisplay(2); // what the host does shows at once
    pages += AsText(form);
    ExpectGolden(pages, "panel-pages");
    form.widget.setDataVisible(false);
    EXPECT_FALSE(form.widget.findChild<QGroupBox*>()->isVisible());
}

TEST(PanelMirror, StylesAndFramesAreDrawn) {
    PanelForm form;
    if (form.widget.devicePixelRatio() != 1) GTEST_SKIP() << "the pictures have one pixel a pixel";
    QString pictures;
    for (const char* page : {"Drop Well", "Reservoir Well"}) {
        form.Turn(page);
        form.Style().setItemText(form.Style().currentIndex(), ""); // fonts differ
        pictures += AsCharacters(form.Style().parentWidget()->grab({88, 32, 80, 24}).toImage());
    }
    form.Style().setFocus();
    pictures += AsCharacters(form.Style().grab({40, 0, 10, 24}).toImage());
    form.Row("X offset")->setText("");
    form.Row("X offset")->setFocus();
    pictures += AsCharacters(form.Row("X offset")->grab({0, 0, 10, 15}).toImage());
    ExpectGolden(pictures, "panel-style");
}

TEST(PanelMirror, WhatIsTypedIsInTheControlAtOnce) {
    PanelForm form;
    Plate& plate = form.widget.plate();
    form.Turn("General Properties");
    QLineEdit& columns = *form.Row("Columns");
    form.Retype(columns, "53");
    EXPECT_EQ(form.Panel().txtData[1].text, "53");
    QTest::keyClick(&columns, Qt::Key_Backspace);
    EXPECT_EQ(columns.cursorPosition(), 1);
    columns.undo();
    EXPECT_EQ(form.Panel().txtData[1].text, "53") << "undoing is an edit as well";
    QTest::keyClick(&columns, Qt::Key_Backspace);
    const Integer well = plate.CurrentWell();
    for (const auto key : {Qt::Key_Up, Qt::Key_Left, Qt::Key_Down, Qt::Key_Right, Qt::Key_Return})
        QTest::keyClick(&columns, key);
    EXPECT_EQ(plate.CurrentWell(), well);
    EXPECT_EQ(plate.Cols, 5) << "Return applies";
    EXPECT_EQ(QApplication::focusWidget(), &form.Pages()) << "the row is not on the first page";

    form.Turn("Drop Well");
    form.Style().setCurrentIndex(3);
    emit form.Style().activated(3);
    EXPECT_EQ(form.Row("Style")->text(), "Square");
    QTest::mouseClick(&form.Apply(), Qt::LeftButton);
    EXPECT_EQ(plate.LoadedDefinition().CompoundWell()->Item("Drop")->Style(), 3);
    QTest::keyClick(&form.Pages(), Qt::Key_Escape);
    EXPECT_FALSE(form.widget.dataVisible());
    EXPECT_TRUE(form.widget.hasFocus());
}

TEST(PanelMirror, NoLineOfACommentIsLost) {
    PanelForm form;
    QPlainTextEdit& comment = form.Comment();
    comment.setFocus();
    comment.moveCursor(QTextCursor::End);
    QTest::keyClick(&comment, Qt::Key_Return);
    QTest::keyClicks(&comment, "third");
    EXPECT_EQ(comment.textCursor().position(), comment.toPlainText().size());
    QTest::mouseClick(&form.Apply(), Qt::LeftButton);
    EXPECT_EQ(form.widget.plate().LoadedDefinition().Comment, "first\r\nsecond\r\nthird\r\n");
    comment.setFocus();
    comment.selectAll();
    QTest::keyClick(&comment, Qt::Key_Delete);
    EXPECT_EQ(form.Panel().txtComment.text, "");
    QTest::keyClick(&comment, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &form.Apply());
}

TEST(PanelMirror, BytesThatAreNoUtf8SurviveAnEdit) {
    PanelForm form;
    Plate& plate = form.widget.plate();
    plate.SetProperty("ROWLABEL", "\xE4");
    form.Turn("General Properties");
    QTest::keyClicks(form.Row("Row Label"), "b");
    EXPECT_EQ(form.Panel().txtData[2].text, "\xE4"
                                            "b");
    plate.PlateClassText("PLATE A\r\nWELL Dr\xF6p\r\n");
    plate.PageChosen(kGeneralPage);
    form.Answer<QInputDialog>([](QInputDialog& dialog) { dialog.accept(); });
    plate.MenuChosen(mnuRenameSubwell);
    EXPECT_EQ(plate.LoadedDefinition().CompoundWell()->Item(1)->WellName(), "Dr\xF6p");
}

TEST(PanelMirror, UndoingBringsBackNothingThatWasTypedElsewhere) {
    PanelForm form;
    form.Turn("General Properties");
    QLineEdit& box = *form.Row("Columns"); // "X offset" of the next page, which is 14
    form.Retype(box, "14");
    form.Turn("Drop Well");
    ASSERT_EQ(form.Row("X offset"), &box);
    box.undo();
    EXPECT_EQ(form.Panel().txtData[1].text, "14");
    form.Turn("Comments");
    QTest::keyClicks(&form.Comment(), "x");
    form.widget.plate().PlateClassText(kPlateText);
    form.widget.plate().DataVisible(true);
    EXPECT_FALSE(form.Comment().document()->isUndoAvailable());
}

TEST(PanelMirror, TheWheelTurnsNoListThatIsNotWorkedOn) {
    PanelForm form;
    form.Turn("Drop Well");
    form.Row("X offset")->setFocus();
    for (QComboBox* const list : {&form.Style(), &form.Pages()}) {
        QWheelEvent turn({5, 5}, list->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {},
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(list, &turn);
    }
    EXPECT_EQ(form.Panel().comboSelect.position, 3);
    EXPECT_FALSE(form.Apply().isEnabled());
}

TEST(PanelMirror, TabReachesEveryRowAndUncoversIt) {
    PanelForm form;
    form.widget.resize(300, 150); // lower than the panel, which scrolls
    form.Turn("Reservoir Well");
    EXPECT_FALSE(IsUncovered(form, *form.Row("R0")));
    QStringList reached;
    QTest::keyClick(&form.Pages(), Qt::Key_Tab);
    for (QWidget* focus = QApplication::focusWidget();
         form.widget.findChild<QGroupBox*>()->isAncestorOf(focus) && focus != &form.Pages();
         focus = QApplication::focusWidget()) {
        reached += focus->accessibleName();
        EXPECT_TRUE(focus == &form.Menu() || IsUncovered(form, *focus))
            << qPrintable(reached.last());
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    QStringList expected{"Sub-well commands"};
    for (const RowCaption& caption : form.Panel().lblAnnotation)
        expected += QString::fromStdString(caption.caption);
    expected.insert(2, "Style"); // next to the first row; there is nothing to apply
    EXPECT_EQ(reached, expected);
}

TEST(PanelMirror, TheMenuAsksInADialogAndFailuresAreReported) {
    PanelForm form;
    const QSignalSpy failures(&form.widget, &PlateWidget::failed);
    form.Turn("General Properties");
    form.ChooseNext(mnuAddNewSubWell);
    QTimer::singleShot(0, &form.widget, [&] {
        form.Answer<QInputDialog>([](QInputDialog& dialog) {
            EXPECT_EQ(dialog.labelText(), "Enter  a unique name for the subwell");
            dialog.setTextValue("New");
            dialog.accept();
        });
    });
    QTest::mouseClick(&form.Menu(), Qt::LeftButton);
    EXPECT_EQ(form.Pages().currentText(), "New");
    EXPECT_TRUE(failures.isEmpty());

    form.Turn("Reservoir Well"); // the last page, whose command finds no sub-well
    form.ChooseNext(mnuRemoveSubWell);
    QTest::mouseClick(&form.Menu(), Qt::LeftButton);
    ASSERT_EQ(failures.size(), 1);
    EXPECT_EQ(failures[0][0], 9);
    form.Turn("Comments");
    form.Answer<QMenu>([&](QMenu& menu) {
        EXPECT_FALSE(menu.actions()[mnuRemoveSubWell]->isEnabled());
        EXPECT_EQ(menu.pos(), form.Menu().mapToGlobal(form.Menu().rect().bottomLeft()));
        menu.close();
    });
    QTest::keyClick(&form.Menu(), Qt::Key_Space);
    EXPECT_EQ(failures.size(), 1);
}

TEST(PanelMirror, AWidgetMayBeDestroyedWhileItsMenuOrItsQuestionIsOpen) {
    for (const int entry : {-1, int{mnuAddNewSubWell}, int{mnuShiftHeight}}) {
        PanelForm form; // answers for the widget that goes
        const QPointer<PlateWidget> widget = new PlateWidget;
        widget->plate().PlateClassText(kPlateText);
        widget->plate().PageChosen(kGeneralPage);
        widget->setEditEnable(true);
        widget->setDataVisible(true);
        widget->show();
        form.Answer<QMenu>([&](QMenu& menu) {
            if (entry < 0) return delete widget;
            form.Answer<QInputDialog>([&](QInputDialog&) { delete widget; });
            menu.setActiveAction(menu.actions()[entry]);
            QTest::keyClick(&menu, Qt::Key_Return);
        });
        Captioned(*widget, "....")->click();
        EXPECT_EQ(widget, nullptr) << entry;
    }
}

TEST(PanelMirror, AClickOnItsBackgroundIsAClickOnTheControl) {
    PanelForm form;
    form.Signals();
    auto* const frame = form.widget.findChild<QGroupBox*>();
    QTest::mouseClick(frame, Qt::LeftButton, {}, frame->rect().bottomRight() - QPoint(8, 8));
    EXPECT_EQ(form.Signals(), "clicked");
}

TEST(PanelMirror, FittingThePlateToANewSizeTellsOnceAndLeavesTheFocus) {
    PanelForm form;
    form.widget.setFixedSize(true);
    form.widget.setRefitOnResize(true);
    const QSignalSpy changes(&form.widget, &PlateWidget::panelChanged);
    auto before = changes.size();
    const auto grow = [&] {
        before = changes.size();
        form.widget.resize(form.widget.size() + QSize(40, 40));
        return changes.size() - before;
    };
    EXPECT_EQ(grow(), 1);
    form.widget.setDataVisible(true);
    form.Turn("General Properties");
    QLineEdit& columns = *form.Row("Columns");
    columns.setFocus();
    EXPECT_EQ(grow(), 1);
    EXPECT_EQ(QApplication::focusWidget(), &columns);
    EXPECT_EQ(columns.accessibleName(), "Columns");

    form.Retype(columns, "5");
    EXPECT_EQ(grow(), 0) << "edits wait for Apply, and the fit for them";
    EXPECT_EQ(columns.text(), "5");
    QTest::mouseClick(&form.Apply(), Qt::LeftButton);
    EXPECT_EQ(form.widget.plate().Cols, 5);
    EXPECT_EQ(changes.size(), before + 1);
}

} // namespace
} // namespace zorvane
