#pragma once

#include "Controls.h"
#include "MetaTexts.h"
#include "QtDriver.h"
#include "SignalLog.h"

#include <QAccessible>
#include <QScreen>
#include <QToolTip>

#include <iomanip>
#include <optional>

namespace zorvane {

/// Drives a PlateWidget as QtDriver does, and shows what only a widget has: its properties and
/// signals, the toolkit's controls in it, and what assistive technology is told.
class WidgetDriver final : public QtDriver {
  public:
    WidgetDriver() : signals_(widget_) {
        process_.messages.onUnexpected = [this](const Message& box) { message_ = box.prompt; };
        EXPECT_TRUE(QTest::qWaitForWindowActive(&widget_));
        widget_.setFocus();
        Unannounced();
    }

    std::optional<String> RunOwn(const String& name, const String& words) override {
        static const std::map<String, void (WidgetDriver::*)(const QStringList&)> commands = {
            {"set", &WidgetDriver::Set},
            {"reset", &WidgetDriver::Reset},
            {"call", &WidgetDriver::CallMethod},
            {"keys", &WidgetDriver::PressKeys},
            {"write", &WidgetDriver::Type},
            {"focus", &WidgetDriver::SetFocus},
            {"wheel", &WidgetDriver::TurnWheel},
            {"click", &WidgetDriver::Click},
            {"tip", &WidgetDriver::AskForToolTip},
            {"leave", &WidgetDriver::Leave},
            {"resize", &WidgetDriver::Resize},
            {"hide-texts", &WidgetDriver::HideTexts},
            {"picture", &WidgetDriver::TakePicture},
            {"describe", &WidgetDriver::Describe},
        };
        const auto command = commands.find(name);
        if (command == commands.end()) return std::nullopt;
        QStringList texts;
        std::istringstream stream(words);
        for (String word; stream >> std::quoted(word);)
            texts += QString::fromStdString(word);
        (this->*command->second)(texts);
        const QString given = std::exchange(given_, {});
        return given.isNull() ? "" : "gives: " + given.toStdString() + "\n";
    }

    std::map<String, String> Window() override {
        widget_.activateWindow(); // a dialog may have been in front
        EXPECT_TRUE(QTest::qWaitForWindowActive(&widget_));
        std::map<String, String> all = QtDriver::Window();
        const auto show = [&](const QString& name, QString text) {
            all[name.toStdString()] = text.replace('\n', " | ").toStdString();
        };
        show("stale", QTest::qWaitFor([&] { return !IsStale(); }, 200) ? "" : "yes");
        show("unannounced", Unannounced().join(' '));
        show("signals", signals_.Take());
        show("message", QString::fromStdString(std::exchange(message_, {})));
        for (int i = Class().propertyOffset(); i < Class().propertyCount(); ++i)
            show(Class().property(i).name(), TextOf(Class().property(i), widget_));
        show("widget size", TextOf(widget_.size()));
        show("hint", TextOf(widget_.sizeHint()));
        show("menu at", TextOf(menuAt_));
        show("cursor", QVariant::fromValue(widget_.cursor().shape()).toString());
        show("tip", tip_);
        const QWidget* const focus = QApplication::focusWidget();
        show("focus on", !focus ? "nothing" : focus == &widget_ ? "plate" : NameOf(*focus));
        show("described", Described(QAccessible::queryAccessibleInterface(&widget_)));
        ShowControls(widget_, show);
        for (int row = 0; row < picture_.size(); ++row)
            show(PictureRow(row), picture_[row]);
        picture_.clear();
        return all;
    }

    // The text of the definition is a property of the widget. Pictures have one pixel a pixel.
    std::set<String> Unseen() const override {
        std::set<String> names = QtDriver::Unseen();
        names.insert("text");
        for (int row = 0; row < 100 && widget_.devicePixelRatio() != 1; ++row)
            names.insert(PictureRow(row).toStdString());
        return names;
    }

  private:
    static QString PictureRow(int row) { return QString("picture %1").arg(row, 2, 10, QChar('0')); }

    /// A line for each row of a picture, or every second one, and a character for each pixel.
    /// Darker ones look darker; five shades leave room for another rounding of blended edges.
    static QStringList AsCharacters(const QImage& picture, int step) {
        QStringList rows;
        for (int y = 0; y < picture.height(); y += step) {
            rows += QString();
            for (int x = 0; x < picture.width(); x += step)
                rows.last() += QLatin1Char("#=+-."[qGray(picture.pixel(x, y)) * 5 / 256]);
        }
        return rows;
    }
    const QMetaObject& Class() const { return *widget_.metaObject(); }
    QMetaProperty PropertyNamed(const QString& name) const {
        return Class().property(Class().indexOfProperty(name.toLatin1()));
    }

    void Set(const QStringList& words) {
        EXPECT_TRUE(Write(PropertyNamed(words[0]), widget_, words.mid(1).join(' ')))
            << qPrintable(words.join(' '));
    }
    void Reset(const QStringList& words) { EXPECT_TRUE(PropertyNamed(words[0]).reset(&widget_)); }
    void CallMethod(const QStringList& words) { given_ = Call(widget_, words[0], words.mid(1)); }

    void PressKeys(const QStringList& words) {
        const QKeyCombination keys = QKeySequence(words[0])[0];
        QTest::keyClick(&Focus(), keys.key(), keys.keyboardModifiers());
    }
    void Type(const QStringList& words) { QTest::keyClicks(&Focus(), words.join(' ')); }
    /// The widget's own without a name.
    void SetFocus(const QStringList& words) {
        if (words == QStringList("nothing")) return widget_.clearFocus();
        (words.isEmpty() ? &widget_ : Named<QWidget>(words.join(' ')))->setFocus();
    }
    void TurnWheel(const QStringList& words) {
        auto* const list = Named<QWidget>(words[0]);
        QWheelEvent turn({5, 5}, list->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {},
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(list, &turn);
    }
    void Click(const QStringList& words) {
        const QPoint place(words[0].toInt(), words[1].toInt());
        auto* const hit = widget_.childAt(place) ? widget_.childAt(place) : &widget_;
        QTest::mouseClick(hit, Qt::LeftButton, {}, hit->mapFrom(&widget_, place));
    }
    void AskForToolTip(const QStringList& words) {
        const QPoint place(words[0].toInt(), words[1].toInt());
        QHelpEvent help(QEvent::ToolTip, place, widget_.mapToGlobal(place));
        for (auto* const window : QApplication::topLevelWidgets())
            if (window->inherits("QTipLabel")) delete window; // it would fade by and by
        QApplication::sendEvent(&widget_, &help);
        tip_ = QToolTip::text();
    }
    void Leave(const QStringList& /*words*/) {
        widget_.setAttribute(Qt::WA_UnderMouse, false);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&widget_, &leave);
    }
    void Resize(const QStringList& words) { widget_.resize(words[0].toInt(), words[1].toInt()); }
    /// Leaves pictures without what fonts and styles draw in many ways.
    void HideTexts(const QStringList& /*words*/) {
        QPalette palette(QColor(0xD0, 0xD0, 0xD0));
        palette.setColor(QPalette::ButtonText, palette.color(QPalette::Button));
        palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Highlight));
        widget_.setPalette(palette);
        widget_.findChild<QPushButton*>()->hide();
    }
    /// A box of the widget and, for every second or third pixel, the step.
    void TakePicture(const QStringList& words) {
        const QRect box(words[0].toInt(), words[1].toInt(), words[2].toInt(), words[3].toInt());
        const QImage picture = widget_.grab(box).toImage();
        if (picture.devicePixelRatio() == 1)
            picture_ = AsCharacters(picture, std::max(1, words.value(4).toInt()));
    }
    void Describe(const QStringList& words) {
        described_ = QAccessible::queryAccessibleInterface(&widget_)->child(words[0].toInt());
    }

    QWidget& Focus() {
        QWidget* const focus = QApplication::focusWidget();
        return focus ? *focus : widget_;
    }
    /// Whether the screen shows anything but what the widget paints by now. On screens with more
    /// pixels only a part of the window can be taken from the screen.
    bool IsStale() {
        const QImage shown = widget_.screen()->grabWindow(widget_.winId()).toImage();
        const QImage now = widget_.grab().toImage().copy(shown.rect());
        return shown.convertToFormat(now.format()) != now;
    }

    /// Properties that have changed since the last call without the signal that tells of it.
    QStringList Unannounced() {
        QStringList names;
        for (int i = Class().propertyOffset(); i < Class().propertyCount(); ++i) {
            const QMetaProperty property = Class().property(i);
            if (!property.hasNotifySignal()) continue;
            const QString value = TextOf(property, widget_);
            const bool changed = std::exchange(values_[i], value) != value;
            if (changed && !signals_.Has(property.notifySignalIndex())) names += property.name();
        }
        return names;
    }

    /// What assistive technology is told of the plate and of one well.
    QString Described(QAccessibleInterface* plate) const {
        QString text =
            QString("%1 of %2").arg(plate->text(QAccessible::Name)).arg(plate->childCount());
        if (!described_) return text;
        if (!described_->isValid()) return text + "; gone";
        for (const auto kind : {QAccessible::Name, QAccessible::Value, QAccessible::Description})
            text += "; " + described_->text(kind);
        const QPoint middle = described_->rect().center();
        if (plate->childAt(middle.x(), middle.y()) == described_) text += " (in sight)";
        text += QString(" (child %1)").arg(plate->indexOfChild(described_));
        if (plate->focusChild() == described_ && described_->state().focused) text += " (focused)";
        if (described_->state().selected) text += " (selected)";
        return text;
    }

    SignalLog signals_;
    std::map<int, QString> values_; ///< of properties, by index
    String message_;
    QString given_; ///< by the method that was called last
    QString tip_;
    QStringList picture_;
    QAccessibleInterface* described_ = nullptr;
};

} // namespace zorvane
