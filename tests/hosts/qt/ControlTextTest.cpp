#include "hosts/qt/texts/ControlText.h"
#include "Form.h"
#include "platform/memory/MemorySite.h"

#include <QComboBox>
#include <QLabel>
#include <QTranslator>

namespace zorvane {
namespace {

/// Has every text of the control in the language of marks, while it is installed.
struct Marks final : QTranslator {
    bool isEmpty() const override { return false; }
    Marks() { QCoreApplication::installTranslator(this); }
    QString translate(const char* context, const char* source, const char*, int) const override {
        return QLatin1String(context) == QLatin1String("Plate") ? QString("§") + source : QString();
    }
};

TEST(ControlText, HasEveryTextThatTheControlShows) {
    TestProcess process;
    MemorySite site;
    Plate plate(site);
    const Marks marks;
    std::vector<String> texts;
    for (Integer step = 0; step < 10; ++step) { // pages, with and without editing, then commands
        plate.PlateClassText(DropOnReservoir() + "SHELFDEPTH 1\r\nVOLUME 1\r\nRIMCENTERX 1\r\n");
        plate.EditEnable(step >= 5);
        plate.DataVisible(true);
        plate.PageChosen(static_cast<Integer>(step % 5));
        for (const RowCaption& caption : plate.Elements().panel.lblAnnotation)
            if (caption.visible) texts.push_back(caption.caption);
        plate.PageChosen(3);
        site.choices = {step};
        RaisedBy([&] { plate.MenuPressed(); });
    }
    const PanelElements& panel = plate.Elements().panel;
    for (const DropDown* list : {&panel.comboSelect, &panel.cmbStyle})
        texts.insert(texts.end(), list->entries.begin(), list->entries.end());
    texts.insert(texts.end(), {plate.Elements().fraData.caption, panel.cmdApply.caption});
    for (const MenuEntry& entry : site.menus.back())
        texts.push_back(entry.caption);
    EXPECT_EQ(site.questions.size(), 5U);
    for (const Question& question : site.questions)
        texts.insert(texts.end(), {question.prompt, question.title});
    for (Long number = 0; number < 500; ++number)
        texts.emplace_back(DescriptionOf(static_cast<ErrorNumber>(number)));
    process.messages.onUnexpected = [&](const Message& box) { texts.push_back(box.prompt); };
    plate.SetPlate("Nope", "no such file");
    plate.SetPlate("Nope", TempFile(OneDrop()).Path());
    texts.push_back(RaisedBy([&] { plate.SetArray(99, 99, 1, 1, "Drop1", 0); }).description);
    for (const String& text : texts)
        EXPECT_TRUE(ControlText(text).startsWith("§")) << text;
}

TEST(ControlText, IsShownButNeverReadBack) {
    Form form;
    const Marks marks;
    form.widget.setEditEnable(true);
    form.widget.setDataVisible(true);
    for (auto* list : form.widget.findChildren<QComboBox*>()) {
        list->setCurrentIndex(list->accessibleName() == "Page" ? 3 : 1);
        emit list->activated(list->currentIndex());
    }
    for (const auto* label : form.widget.findChildren<QLabel*>())
        EXPECT_TRUE(label->isHidden() || label->text().startsWith("§"));
    form.widget.plate().ApplyPressed();
    const String definition = form.widget.plate().PlateClassText();
    EXPECT_NE(definition.find("STYLE Shelf"), String::npos) << definition;
}

} // namespace
} // namespace zorvane
