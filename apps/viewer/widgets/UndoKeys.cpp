#include "apps/viewer/widgets/UndoKeys.h"

#include <QKeyEvent>
#include <QWidget>

#include <utility>

namespace zorvane::viewer {

namespace {

bool IsUndoKey(const QKeyEvent& pressed) {
    return pressed.matches(QKeySequence::Undo) || pressed.matches(QKeySequence::Redo) ||
           pressed.keyCombination() == QKeyCombination(Qt::CTRL, Qt::Key_Y);
}

} // namespace

UndoKeys::UndoKeys(QWidget& field, std::function<bool()> leaves)
    : QObject(&field), leaves_(std::move(leaves)) {
    field.installEventFilter(this);
}

bool UndoKeys::eventFilter(QObject* watched, QEvent* event) {
    const bool asks = event->type() == QEvent::ShortcutOverride;
    if (!asks || !IsUndoKey(*static_cast<QKeyEvent*>(event)) || !leaves_())
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}

} // namespace zorvane::viewer
