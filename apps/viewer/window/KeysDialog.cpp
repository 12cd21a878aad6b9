#include "apps/viewer/window/KeysDialog.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>

namespace zorvane::viewer {

namespace {

QString Plain(QString text) { return text.remove('&').remove(QStringLiteral("…")); }

QString Native(const QList<QKeySequence>& keys) {
    return QKeySequence::listToString(keys, QKeySequence::NativeText)
        .replace(QStringLiteral("; "), QStringLiteral(", "));
}

void AddRow(QFormLayout& form, const QString& keys, const QString& effect) {
    auto* label = new QLabel(effect);
    label->setTextFormat(Qt::PlainText);
    form.addRow(keys, label);
}

/// The keys of a menu that work everywhere, or those of one widget. The title is that of the menu
/// where its entries mean nothing without it.
void AddMenuKeys(QFormLayout& form, const QList<QAction*>& actions, bool everywhere,
                 const QString& title = {}) {
    for (const QAction* action : actions) {
        const QString text = title + Plain(action->text());
        if (action->menu())
            AddMenuKeys(form, action->menu()->actions(), everywhere, text + QStringLiteral(": "));
        const bool fits = (action->shortcutContext() != Qt::WidgetShortcut) == everywhere;
        if (fits && !action->shortcut().isEmpty()) AddRow(form, Native(action->shortcuts()), text);
    }
}

QFormLayout& AddGroup(QLayout& layout, const QString& title) {
    auto* group = new QGroupBox(title);
    layout.addWidget(group);
    auto* form = new QFormLayout(group);
    form->setHorizontalSpacing(24);
    return *form;
}

} // namespace

KeysDialog::KeysDialog(const QList<QAction*>& menus, QWidget* parent) : QDialog(parent) {
    setWindowTitle(tr("Keys"));
    auto* groups = new QHBoxLayout;
    QFormLayout& everywhere = AddGroup(*groups, tr("Everywhere"));
    QFormLayout& plate = AddGroup(*groups, tr("On the plate"));
    AddPlateKeys(plate);
    for (const QAction* menu : menus) {
        AddMenuKeys(everywhere, menu->menu()->actions(), true);
        AddMenuKeys(plate, menu->menu()->actions(), false);
    }

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(groups);
    layout->addWidget(buttons);
}

void KeysDialog::AddPlateKeys(QFormLayout& form) {
    const auto key = [](QKeyCombination keys) {
        return QKeySequence(keys).toString(QKeySequence::NativeText);
    };
    const auto both = [key](QKeyCombination one, QKeyCombination other) {
        return key(one) + QStringLiteral(", ") + key(other);
    };
    AddRow(form, tr("Arrow keys"), tr("To the next well"));
    AddRow(form, both(Qt::Key_Home, Qt::Key_End), tr("To the ends of the row"));
    AddRow(form, both(Qt::Key_PageUp, Qt::Key_PageDown), tr("To the ends of the column"));
    AddRow(form, both(Qt::CTRL | Qt::Key_Home, Qt::CTRL | Qt::Key_End),
           tr("To the first and the last well"));
    AddRow(form, key(Qt::Key_Space), tr("Select the well, or not"));
    AddRow(form, tr("Shift and arrow keys"), tr("Select from well to well"));
    AddRow(form, key(Qt::CTRL | Qt::Key_A), tr("Select all wells"));
    AddRow(form, key(Qt::Key_Escape), tr("Clear the selection"));
}

} // namespace zorvane::viewer
