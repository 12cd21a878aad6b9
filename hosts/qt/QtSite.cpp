#include "hosts/qt/QtSite.h"

#include "hosts/qt/PanelText.h"
#include "hosts/qt/Units.h"

#include <QCursor>
#include <QInputDialog>
#include <QMenu>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace zorvane {

void QtSite::Repaint(const Rect& area) {
    if (onRepaint) onRepaint(area);
}

Single QtSite::Width() const { return ToUnits(widget_.width()); }

Single QtSite::Height() const { return ToUnits(widget_.height()); }

void QtSite::Resize(Single width, Single height) {
    const auto pixels = [](Single units) {
        return std::clamp(static_cast<int>(std::ceil(ToPixels(units))), 0, kLongestSide);
    };
    if (onResize) onResize({pixels(width), pixels(height)});
}

void QtSite::TakeFocus() { widget_.setFocus(Qt::MouseFocusReason); }

void QtSite::FocusDataButton() { dataButton_.setFocus(Qt::OtherFocusReason); }

void QtSite::PanelChanged() {
    if (onPanelChange) onPanelChange();
}

String QtSite::Ask(const Question& question) {
    QString prompt = QString::fromStdString(question.prompt);
    prompt.remove(QLatin1Char('\r'));
    const QString answer =
        QInputDialog::getText(&widget_, QString::fromStdString(question.title), prompt,
                              QLineEdit::Normal, ShownText(question.preset));
    return TakenText(answer, question.preset);
}

Integer QtSite::Choose(const std::vector<MenuEntry>& entries) {
    QMenu menu(&widget_);
    for (const MenuEntry& entry : entries)
        menu.addAction(QString::fromStdString(entry.caption))->setEnabled(entry.enabled);
    QAction* chosen = menu.exec(menuPlace ? menuPlace() : QCursor::pos());
    return static_cast<Integer>(menu.actions().indexOf(chosen));
}

} // namespace zorvane
