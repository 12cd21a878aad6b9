#pragma once

#include "Form.h"
#include "behaviour/HostDriver.h"
#include "hosts/qt/Units.h"

#include <QComboBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTimer>

#include <optional>

namespace zorvane {

/// Drives a PlateWidget through the events of its window and the desktop's own controls.
class QtDriver : public HostDriver {
  public:
    QtDriver() {
        process_.screen.twipsPerPixelX = static_cast<Single>(15 / widget_.devicePixelRatio());
        process_.screen.twipsPerPixelY = process_.screen.twipsPerPixelX;
        widget_.resize(440, 320);
        QObject::connect(&widget_, &PlateWidget::failed,
                         [this](int number, const QString& source, const QString& description) {
                             failure_.emplace(number, source.toStdString(),
                                              description.toStdString());
                         });
        widget_.show();
        widget_.activateWindow();
    }

    Plate& Control() override { return widget_.plate(); }

    void Press(Integer button, Integer shift, Single x, Single y) override {
        Send(QEvent::MouseButtonPress, button, button, shift, x, y);
    }
    void DoubleClick(Integer button, Integer shift, Single x, Single y) override {
        Send(QEvent::MouseButtonDblClick, button, button, shift, x, y);
    }
    void Move(Integer buttons, Integer shift, Single x, Single y) override {
        Send(QEvent::MouseMove, 0, buttons, shift, x, y);
    }
    void Release(Integer button, Integer shift, Single x, Single y) override {
        Send(QEvent::MouseButtonRelease, button, 0, shift, x, y);
    }
    void KeyDown(Integer keyCode, Integer character, Integer shift) override {
        const QString text = character == 0 ? QString() : QString(QChar(character));
        SendKey(QEvent::KeyPress, keyCode, shift, text);
    }
    void KeyUp(Integer keyCode, Integer shift) override {
        SendKey(QEvent::KeyRelease, keyCode, shift, {});
    }

    void PressDataButton() override {
        QTest::mouseClick(widget_.findChild<QPushButton*>(), Qt::LeftButton);
        ThrowFailure();
    }
    void ChoosePage(Integer position) override { ChooseFrom("Page", position); }
    void TypeComment(const String& text) override {
        auto* comment = widget_.findChild<QPlainTextEdit*>();
        comment->selectAll();
        QTest::keyClicks(comment, QString::fromStdString(text).trimmed());
    }
    void TypeRow(Integer row, const String& text) override {
        const auto& caption =
            Control().Elements().panel.lblAnnotation.at(static_cast<std::size_t>(row)).caption;
        auto* edit = Named<QLineEdit>(QString::fromStdString(caption));
        ASSERT_NE(edit, nullptr) << caption;
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, QString::fromStdString(text));
    }
    void ChooseStyle(Integer position) override { ChooseFrom("Style", position); }
    void PressApply() override {
        QTest::mouseClick(Captioned("Apply Changes"), Qt::LeftButton);
        ThrowFailure();
    }
    void ChooseCommand(Integer entry, const String& answer) override {
        const auto operating = Answering(entry, answer);
        QTest::mouseClick(Captioned("...."), Qt::LeftButton);
        ThrowFailure();
    }
    void RunCommand(SubWellCommand command, const String& answer) override {
        const auto operating = Answering(command, answer);
        Control().MenuChosen(command);
    }

    std::map<String, String> Window() override {
        return {{"tooltip", Control().Elements().plateToolTip},
                {"pointer", std::to_string(static_cast<int>(Control().Elements().platePointer))},
                {"asked", asked_}};
    }
    // Tests of their own see outlines in pictures, and the focus in an active window. Boxes of
    // wells are whole pixels, which other screens have of another size.
    std::set<String> Unseen() const override {
        if (widget_.devicePixelRatio() != 1)
            return {"outline", "focus", "size", "select box", "first well", "last well", "well"};
        return {"outline", "focus", "size"};
    }

  protected:
    template <class Widget>
    Widget* Named(const QString& name) const {
        for (auto* child : widget_.findChildren<Widget*>())
            if (child->accessibleName() == name && !child->isHidden()) return child;
        return nullptr;
    }

    TestProcess process_;
    PlateWidget widget_;
    QPoint menuAt_; ///< where in the widget the last menu has opened

  private:
    static Qt::MouseButtons Buttons(Integer buttons) {
        return (buttons & kLeftButton ? Qt::LeftButton : Qt::NoButton) |
               (buttons & kRightButton ? Qt::RightButton : Qt::NoButton) |
               (buttons & kMiddleButton ? Qt::MiddleButton : Qt::NoButton);
    }
    static Qt::KeyboardModifiers Modifiers(Integer shift) {
        return (shift & kShiftKey ? Qt::ShiftModifier : Qt::NoModifier) |
               (shift & kCtrlKey ? Qt::ControlModifier : Qt::NoModifier) |
               (shift & kAltKey ? Qt::AltModifier : Qt::NoModifier);
    }

    void Send(QEvent::Type type, Integer button, Integer buttons, Integer shift, Single x,
              Single y) {
        const Rect& area = Control().Elements().fraPlate.box;
        const QPointF place(ToPixels(Rect{area.left + x, area.top + y, 0, 0}).topLeft());
        QMouseEvent event(type, place, widget_.mapToGlobal(place),
                          static_cast<Qt::MouseButton>(static_cast<int>(Buttons(button))),
                          Buttons(buttons), Modifiers(shift));
        widget_.setAttribute(Qt::WA_UnderMouse); // wherever the pointer is on this screen
        QApplication::sendEvent(&widget_, &event);
        ThrowFailure();
    }
    void SendKey(QEvent::Type type, Integer code, Integer shift, const QString& text) {
        static const std::map<Integer, int> keys = {
            {16, Qt::Key_Shift}, {17, Qt::Key_Control}, {18, Qt::Key_Alt},  {37, Qt::Key_Left},
            {38, Qt::Key_Up},    {39, Qt::Key_Right},   {40, Qt::Key_Down}, {65, Qt::Key_A}};
        // The event adds or takes away what its own key does to the state before it.
        const bool isModifier = code >= 16 && code <= 18;
        const int own = isModifier ? 1 << (code - 16) : 0;
        QKeyEvent event(type, code == 0 ? 0 : keys.at(code),
                        Modifiers(static_cast<Integer>(shift ^ own)), text);
        QApplication::sendEvent(&widget_, &event);
        ThrowFailure();
    }
    void ChooseFrom(const char* name, Integer position) {
        auto* list = Named<QComboBox>(name);
        ASSERT_NE(list, nullptr) << name;
        list->setCurrentIndex(position);
        emit list->activated(position);
        ThrowFailure();
    }
    /// Answers what opens for as long as the result lives.
    std::unique_ptr<QTimer> Answering(Integer entry, const String& answer) {
        asked_.clear();
        auto timer = std::make_unique<QTimer>();
        QObject::connect(timer.get(), &QTimer::timeout,
                         [this, entry, answer] { Answer(entry, answer); });
        timer->start(1);
        return timer;
    }
    /// Answers the menu and then the question that are open; what cannot be chosen is dismissed.
    void Answer(Integer entry, const String& answer) {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            menuAt_ = widget_.mapFromGlobal(menu->pos());
            auto* action = entry < 0 ? nullptr : menu->actions().at(entry);
            if (!action || !action->isEnabled()) return void(menu->close());
            menu->setActiveAction(action);
            QTest::keyClick(menu, Qt::Key_Return);
        } else if (auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget())) {
            const QString prompt =
                box->labelText().replace(QLatin1Char('\n'), QLatin1String(" | "));
            asked_ = "[" + box->windowTitle().toStdString() + "] " + prompt.toStdString() + " (" +
                     box->textValue().toStdString() + ")";
            box->setTextValue(QString::fromStdString(answer));
            box->accept();
        }
    }
    void ThrowFailure() {
        if (const auto failure = std::exchange(failure_, {})) throw RuntimeError(*failure);
    }
    QPushButton* Captioned(const char* text) const {
        for (auto* child : widget_.findChildren<QPushButton*>())
            if (child->text() == text) return child;
        return nullptr;
    }

    std::optional<RuntimeError> failure_;
    String asked_;
};

} // namespace zorvane
