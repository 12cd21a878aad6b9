#pragma once

#include "QtDriver.h"
#include "SignalLog.h"

#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QMetaProperty>
#include <QScreen>
#include <QSignalSpy>
#include <QToolTip>

#include <array>
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
        std::istringstream stream(words);
        String first;
        stream >> first;
        const auto text = QString::fromStdString(first);
        const auto number = [&] { return text.toInt(); };
        const auto rest = [&] {
            String line;
            std::getline(stream >> std::ws, line);
            return QString::fromStdString(line);
        };
        const QString all = QString::fromStdString(words);
        if (name == "set") {
            const QMetaProperty property = PropertyNamed(first);
            const QString value = rest();
            EXPECT_TRUE(property.write(&widget_, property.isFlagType() && !value.isEmpty()
                                                     ? value
                                                     : ValueOf(value, property.metaType())))
                << words;
        } else if (name == "reset") {
            EXPECT_TRUE(PropertyNamed(first).reset(&widget_)) << words;
        } else if (name == "call") {
            QStringList texts;
            for (String word; stream >> std::quoted(word);)
                texts += QString::fromStdString(word);
            return Call(text, texts);
        } else if (name == "keys") {
            const QKeyCombination keys = QKeySequence(all)[0];
            QTest::keyClick(&Focus(), keys.key(), keys.keyboardModifiers());
        } else if (name == "write") {
            QTest::keyClicks(&Focus(), all);
        } else if (name == "focus") {
            if (words == "nothing") return widget_.clearFocus(), "";
            (words.empty() ? &widget_ : Named<QWidget>(all))->setFocus();
        } else if (name == "wheel") {
            auto* const list = Named<QWidget>(all);
            QWheelEvent turn({5, 5}, list->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {},
                             Qt::NoScrollPhase, false);
            QApplication::sendEvent(list, &turn);
        } else if (name == "click") {
            const QPoint place(number(), rest().toInt());
            auto* const hit = widget_.childAt(place) ? widget_.childAt(place) : &widget_;
            QTest::mouseClick(hit, Qt::LeftButton, {}, hit->mapFrom(&widget_, place));
        } else if (name == "tip") {
            const QPoint place(number(), rest().toInt());
            QHelpEvent help(QEvent::ToolTip, place, widget_.mapToGlobal(place));
            for (auto* const window : QApplication::topLevelWidgets())
                if (window->inherits("QTipLabel")) delete window; // it would fade by and by
            QApplication::sendEvent(&widget_, &help);
            tip_ = QToolTip::text();
        } else if (name == "leave") {
            widget_.setAttribute(Qt::WA_UnderMouse, false);
            QEvent leave(QEvent::Leave);
            QApplication::sendEvent(&widget_, &leave);
        } else if (name == "resize") {
            widget_.resize(number(), rest().toInt());
        } else if (name == "hide-texts") {
            HideTexts();
        } else if (name == "picture") {
            int x = number(), y = 0, width = 0, height = 0, step = 1;
            stream >> y >> width >> height >> step;
            const QImage picture = widget_.grab({x, y, width, height}).toImage();
            if (picture.devicePixelRatio() == 1) picture_ = AsCharacters(picture, step);
        } else if (name == "describe") {
            described_ = QAccessible::queryAccessibleInterface(&widget_)->child(number());
        } else {
            return std::nullopt;
        }
        return "";
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
            show(Class().property(i).name(), ValueOf(Class().property(i)));
        show("widget size", QString("%1x%2").arg(widget_.width()).arg(widget_.height()));
        show("hint",
             QString("%1x%2").arg(widget_.sizeHint().width()).arg(widget_.sizeHint().height()));
        show("menu at", QString("%1,%2").arg(menuAt_.x()).arg(menuAt_.y()));
        show("cursor", QVariant::fromValue(widget_.cursor().shape()).toString());
        show("tip", tip_);
        const QWidget* const focus = QApplication::focusWidget();
        show("focus on", !focus ? "nothing" : focus == &widget_ ? "plate" : NameOf(*focus));
        show("described", Described(QAccessible::queryAccessibleInterface(&widget_)));
        ShowControls(show);
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
    /// Leaves pictures without what fonts and styles draw in many ways.
    void HideTexts() {
        QPalette palette(QColor(0xD0, 0xD0, 0xD0));
        palette.setColor(QPalette::ButtonText, palette.color(QPalette::Button));
        palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Highlight));
        widget_.setPalette(palette);
        widget_.findChild<QPushButton*>()->hide();
    }

    static QString TextOf(const QVariant& value) {
        if (value.canConvert<QString>()) return value.toString();
        QString text; // "QVariant(QRect, QRect(1,2 3x4))"
        QDebug(&text) << value;
        return text.mid(text.indexOf(", ") + 2).chopped(2);
    }
    static QVariant ValueOf(const QString& text, QMetaType type) {
        if (text.isEmpty()) return QVariant(type);
        QVariant value = text;
        if (type == QMetaType::fromType<QList<int>>()) {
            QList<int> numbers;
            for (const QString& number : text.split(','))
                numbers += number.toInt();
            return QVariant::fromValue(numbers);
        }
        if (type == QMetaType::fromType<QPointF>())
            return QPointF(text.section(',', 0, 0).toDouble(), text.section(',', 1).toDouble());
        EXPECT_TRUE(value.convert(type)) << qPrintable(text);
        return value;
    }

    const QMetaObject& Class() const { return *widget_.metaObject(); }
    QMetaProperty PropertyNamed(const String& name) const {
        return Class().property(Class().indexOfProperty(name.c_str()));
    }

    QWidget& Focus() {
        QWidget* const focus = QApplication::focusWidget();
        return focus ? *focus : widget_;
    }
    QString ValueOf(const QMetaProperty& property) const {
        const QVariant value = property.read(&widget_);
        return property.isFlagType() ? property.enumerator().valueToKeys(value.toInt())
                                     : TextOf(value);
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
            const QString value = ValueOf(property);
            const bool changed = std::exchange(values_[i], value) != value;
            if (changed && !signals_.Has(property.notifySignalIndex())) names += property.name();
        }
        return names;
    }

    /// Calls a slot or another method with arguments read from texts, and returns what it
    /// gives.
    String Call(const QString& name, const QStringList& texts) {
        for (int i = Class().methodOffset(); i < Class().methodCount(); ++i) {
            const QMetaMethod method = Class().method(i);
            if (method.name() != name || method.parameterCount() != texts.size()) continue;
            std::array<QVariant, 7> values;
            std::array<QGenericArgument, 7> arguments;
            for (int at = 0; at < texts.size(); ++at) {
                QVariant& value = values.at(static_cast<std::size_t>(at));
                value = ValueOf(texts[at], method.parameterMetaType(at));
                arguments.at(static_cast<std::size_t>(at)) = {value.typeName(), value.constData()};
            }
            QVariant result(method.returnMetaType());
            const QGenericReturnArgument given(method.typeName(), result.data());
            std::apply([&](auto... all) { method.invoke(&widget_, given, all...); }, arguments);
            return result.isValid() ? "gives: " + TextOf(result).toStdString() + "\n" : "";
        }
        ADD_FAILURE() << "no such method: " << qPrintable(name);
        return {};
    }

    /// What assistive technology is told of the plate and of one well.
    QString Described(QAccessibleInterface* plate) const {
        QString text =
            QString("%1 of %2").arg(plate->text(QAccessible::Name)).arg(plate->childCount());
        QAccessibleInterface* const well = described_;
        if (!well) return text;
        if (!well->isValid()) return text + "; gone";
        for (const auto kind : {QAccessible::Name, QAccessible::Value, QAccessible::Description})
            text += "; " + well->text(kind);
        const QPoint middle = well->rect().center();
        if (plate->childAt(middle.x(), middle.y()) == well) text += " (in sight)";
        if (plate->indexOfChild(well) >= 0)
            text += QString(" (child %1)").arg(plate->indexOfChild(well));
        if (plate->focusChild() == well && well->state().focused) text += " (focused)";
        if (well->state().selected) text += " (selected)";
        return text;
    }

    static QString NameOf(const QWidget& shown) {
        const QString name = shown.accessibleName();
        return name.isEmpty() ? TextIn(shown) : name;
    }
    template <class Show>
    void ShowControls(Show show) const {
        QStringList stack;
        for (auto* const child : widget_.findChildren<QWidget*>()) {
            const QString text = TextIn(*child);
            if (!child->isVisible() || child->isWindow() || text.isNull()) continue;
            const bool isCaption = qobject_cast<QLabel*>(child);
            const QString name = (isCaption ? "caption " : "control ") + NameOf(*child);
            if (!isCaption) stack += NameOf(*child);
            const QRect box(child->mapTo(&widget_, QPoint()), child->size());
            show(name, QString("%1,%2 %3x%4 %5px \"%6\"%7")
                           .arg(box.x())
                           .arg(box.y())
                           .arg(box.width())
                           .arg(box.height())
                           .arg(child->font().pixelSize())
                           .arg(text, States(*child)));
        }
        show("stack", stack.join(", "));
    }
    QString States(const QWidget& shown) const {
        QString states;
        const auto* const edit = qobject_cast<const QLineEdit*>(&shown);
        const auto* const comment = qobject_cast<const QPlainTextEdit*>(&shown);
        const auto* const label = qobject_cast<const QLabel*>(&shown);
        if (!shown.isEnabled()) states += " disabled";
        if (shown.font().bold()) states += " bold";
        if (shown.font().italic()) states += " italic";
        if (edit && edit->alignment().testFlag(Qt::AlignRight)) states += " right";
        if (edit && edit->hasFocus()) states += QString(" at %1").arg(edit->cursorPosition());
        if (comment && comment->isReadOnly()) states += " read-only";
        if (comment && comment->document()->isUndoAvailable()) states += " undoable";
        if (label && label->buddy()) states += " for " + label->buddy()->accessibleName();
        if (label && shown.autoFillBackground()) states += " opaque";
        const QColor base = widget_.palette().color(QPalette::Base);
        if (shown.palette().color(QPalette::Base) != base) states += " grey";
        return states;
    }
    static QString TextIn(const QWidget& shown) {
        if (const auto* label = qobject_cast<const QLabel*>(&shown)) return label->text();
        if (const auto* edit = qobject_cast<const QLineEdit*>(&shown)) return edit->text();
        if (const auto* box = qobject_cast<const QPlainTextEdit*>(&shown))
            return box->toPlainText();
        if (const auto* button = qobject_cast<const QPushButton*>(&shown)) return button->text();
        if (const auto* frame = qobject_cast<const QGroupBox*>(&shown)) return frame->title();
        if (shown.inherits("zorvane::StylePreview")) return "Preview";
        const auto* list = qobject_cast<const QComboBox*>(&shown);
        QStringList entries;
        for (int i = 0; list && i < list->count(); ++i)
            entries += (i == list->currentIndex() ? "*" : "") + list->itemText(i);
        return entries.join('|');
    }

    SignalLog signals_;
    std::map<int, QString> values_; ///< of properties, by index
    String message_;
    QString tip_;
    QStringList picture_;
    QAccessibleInterface* described_ = nullptr;
};

} // namespace zorvane
