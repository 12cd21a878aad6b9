#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace zorvane {

// The toolkit's controls in a widget, as texts.

/// What a control shows: its text, or its entries with a star in front of the chosen one. Null for
/// what is no control.
inline QString TextIn(const QWidget& shown) {
    if (const auto* label = qobject_cast<const QLabel*>(&shown)) return label->text();
    if (const auto* edit = qobject_cast<const QLineEdit*>(&shown)) return edit->text();
    if (const auto* box = qobject_cast<const QPlainTextEdit*>(&shown)) return box->toPlainText();
    if (const auto* button = qobject_cast<const QPushButton*>(&shown)) return button->text();
    if (const auto* frame = qobject_cast<const QGroupBox*>(&shown)) return frame->title();
    if (shown.inherits("zorvane::StylePreview")) return "Preview";
    const auto* list = qobject_cast<const QComboBox*>(&shown);
    QStringList entries;
    for (int i = 0; list && i < list->count(); ++i)
        entries += (i == list->currentIndex() ? "*" : "") + list->itemText(i);
    return entries.join('|');
}

/// The name that assistive technology is told, or else the text.
inline QString NameOf(const QWidget& shown) {
    const QString name = shown.accessibleName();
    return name.isEmpty() ? TextIn(shown) : name;
}

inline QString States(const QWidget& shown, const QColor& base) {
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
    if (shown.palette().color(QPalette::Base) != base) states += " grey";
    return states;
}

/// Hands each visible control on by name, with its place, text and state; at the end the names of
/// all but captions, from back to front.
template <class Show>
void ShowControls(const QWidget& widget, Show show) {
    QStringList stack;
    for (auto* const child : widget.findChildren<QWidget*>()) {
        const QString text = TextIn(*child);
        if (!child->isVisible() || child->isWindow() || text.isNull()) continue;
        const bool isCaption = qobject_cast<QLabel*>(child);
        const QString name = (isCaption ? "caption " : "control ") + NameOf(*child);
        if (!isCaption) stack += NameOf(*child);
        const QRect box(child->mapTo(&widget, QPoint()), child->size());
        show(name, QString("%1,%2 %3x%4 %5px \"%6\"%7")
                       .arg(box.x())
                       .arg(box.y())
                       .arg(box.width())
                       .arg(box.height())
                       .arg(child->font().pixelSize())
                       .arg(text, States(*child, widget.palette().color(QPalette::Base))));
    }
    show("stack", stack.join(", "));
}

} // namespace zorvane
