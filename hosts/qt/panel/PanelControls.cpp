#include "hosts/qt/panel/PanelControls.h"

#include "hosts/qt/Units.h"
#include "hosts/qt/texts/ControlText.h"

#include <QComboBox>
#include <QPushButton>
#include <QSignalBlocker>

namespace zorvane {

QRect InView(const Rect& box, int wider) {
    return ToPixels(box.Moved(0, -kEmptyTop)).toRect().adjusted(0, 0, wider, 0);
}

void SetColor(QWidget& widget, QPalette::ColorRole role, const QColor& color) {
    QPalette palette = widget.palette();
    if (palette.color(role) == color) return;
    palette.setColor(role, color);
    widget.setPalette(palette);
}

QString WithoutMnemonic(QString text) {
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

void ShowButton(QPushButton& shown, const Button& button, QPoint shift) {
    shown.setGeometry(InView(button.box).translated(shift));
    shown.setText(ControlText(button.caption));
    shown.setEnabled(button.enabled);
    shown.setVisible(button.visible);
}

void ShowDropDown(QComboBox& shown, const DropDown& list, int wider) {
    const QSignalBlocker silent(shown);
    shown.setGeometry(InView(list.box, wider));
    while (shown.count() > static_cast<int>(list.entries.size()))
        shown.removeItem(shown.count() - 1);
    for (int i = 0; i < static_cast<int>(list.entries.size()); ++i) {
        const QString entry = ControlText(list.entries[static_cast<std::size_t>(i)]);
        if (i == shown.count()) shown.addItem(entry);
        if (shown.itemText(i) != entry) shown.setItemText(i, entry);
    }
    shown.setCurrentIndex(list.position);
    shown.setEnabled(list.enabled);
    shown.setVisible(list.visible);
}

} // namespace zorvane
