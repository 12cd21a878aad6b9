#include "hosts/qt/QtSite.h"

#include "hosts/qt/Units.h"
#include "hosts/qt/panel/PanelText.h"
#include "hosts/qt/texts/ControlText.h"

#include <QCursor>
#include <QInputDialog>
#include <QMenu>

#include <algorithm>
#include <cmath>

namespace zorvane {

Single QtSite::Width() const { return widget_ ? ToUnits(widget_->width()) : 0; }

Single QtSite::Height() const { return widget_ ? ToUnits(widget_->height()) : 0; }

void QtSite::Resize(Single width, Single height) {
    const auto pixels = [](Single units) {
        return std::clamp(static_cast<int>(std::ceil(ToPixels(units))), 0, kLongestSide);
    };
    emit sizeAsked({pixels(width), pixels(height)});
}

void QtSite::TakeFocus() {
    if (widget_) widget_->setFocus(Qt::MouseFocusReason);
}

String QtSite::Ask(const Question& question) {
    const QString answer =
        QInputDialog::getText(widget_, ControlText(question.title), ControlText(question.prompt),
                              QLineEdit::Normal, ShownText(question.preset));
    return TakenText(answer, question.preset);
}

Integer QtSite::Choose(const std::vector<MenuEntry>& entries) {
    const QPointer<QMenu> menu = new QMenu(widget_);
    for (const MenuEntry& entry : entries)
        menu->addAction(ControlText(entry.caption))->setEnabled(entry.enabled);
    const QAction* const chosen = menu->exec(MenuPlace());
    if (!menu) return -1; // went with its widget
    const auto position = static_cast<Integer>(menu->actions().indexOf(chosen));
    delete menu;
    return position;
}

QPoint QtSite::MenuPlace() const {
    if (!menuButton_ || menuButton_->underMouse()) return QCursor::pos();
    return menuButton_->mapToGlobal(menuButton_->rect().bottomLeft());
}

} // namespace zorvane
