#include "apps/viewer/WindowState.h"

#include "apps/viewer/PlateSession.h"
#include "apps/viewer/editing/DifferencePanel.h"
#include "apps/viewer/logic/WellSnapshot.h"
#include "apps/viewer/panels/EventLog.h"
#include "apps/viewer/panels/ViewSettings.h"
#include "apps/viewer/panels/WellInspector.h"
#include "apps/viewer/plate/VolumeLegend.h"
#include "apps/viewer/widgets/ColorButton.h"
#include "apps/viewer/widgets/Notice.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QSpinBox>
#include <QStatusBar>

#include <cmath>

namespace zorvane::viewer {

namespace {

QString Plain(QString text) { return text.remove(QLatin1Char('&')); }

QString ValueOf(const QWidget& field) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&field)) {
        if (button->isCheckable()) return button->isChecked() ? "on" : "off";
        return qobject_cast<const ColorButton*>(button) ? button->text() : QString();
    }
    if (const auto* spin = qobject_cast<const QAbstractSpinBox*>(&field)) return spin->text();
    if (const auto* list = qobject_cast<const QComboBox*>(&field)) return list->currentText();
    if (const auto* edit = qobject_cast<const QLineEdit*>(&field)) return edit->text();
    if (const auto* label = qobject_cast<const QLabel*>(&field)) return label->text();
    return {};
}

QString TextOf(const WellSnapshot& well) {
    return QStringLiteral("%1%2 volume %3 text '%4' error %5 annotation '%6' colours %7 %8")
        .arg(well.defined ? "defined" : "-", well.selected ? " selected" : "")
        .arg(double{well.volume})
        .arg(QString::fromStdString(well.text))
        .arg(well.errorCode)
        .arg(QString::fromStdString(well.annotation))
        .arg(well.bottomColor, 0, 16)
        .arg(well.rimColor, 0, 16);
}

void AddNotices(Shown& shown, const QWidget& panel) {
    for (const auto* notice : panel.findChildren<Notice*>())
        if (!notice->isHidden()) shown["notice"] += notice->Text();
    for (const auto* label : panel.findChildren<QLabel*>("found"))
        if (!label->isHidden()) shown["found"] = label->text();
}

void AddWells(Shown& shown, PlateSession& session) {
    const Plate& plate = session.Control();
    for (Integer well = 0; well < plate.TotalWells(); ++well) {
        const WellSnapshot now = Capture(plate, well);
        if (now != EmptyWell(plate)) shown[QStringLiteral("well %1").arg(well, 2)] = TextOf(now);
    }
    shown["plate"] =
        QStringLiteral("%1, %2 x %3, at well %4, page %5%6")
            .arg(session.Widget().plateName())
            .arg(plate.Rows)
            .arg(plate.Cols)
            .arg(plate.CurrentWell())
            .arg(plate.DataVisible() ? plate.Elements().panel.comboSelect.position : -1)
            .arg(plate.EditEnable() ? ", editable" : "");
}

void AddActions(Shown& shown, const MainWindow& window) {
    QStringList on;
    QStringList off;
    for (const auto* action : window.findChildren<QAction*>()) {
        const QString name = NameOf(*action);
        if (action->isChecked()) on += name;
        if (!action->isEnabled() && !name.isEmpty()) off += name;
        const QString keys = QKeySequence::listToString(action->shortcuts());
        if (!keys.isEmpty()) shown["keys of " + name] = keys;
        if (!action->objectName().isEmpty()) shown[name] = Plain(action->text());
    }
    shown["checked"] = on.join(", ");
    shown["disabled"] = off.join(", ");
}

void AddPanels(Shown& shown, const MainWindow& window) {
    shown.insert(FieldsOf(*window.findChild<WellInspector*>()));
    shown.insert(FieldsOf(*window.findChild<ViewSettings*>()));
    // Lengths in pixels differ with the fonts of the machine.
    for (const QString& line : window.findChild<EventLog*>()->Text().split('\n'))
        shown["event" + line.left(4)] = line.mid(6).section(", X", 0, 0);
    const double scale = window.findChild<PlateWidget*>()->drawingScale();
    const bool same =
        std::abs(window.findChild<ViewSettings*>()->findChild<QDoubleSpinBox*>()->value() - scale) <
        0.06;
    shown["Scale"].replace(QRegularExpression("^\\S+"), same ? "as drawn" : "out of date");
    QStringList front;
    for (const auto* dock : window.findChildren<QDockWidget*>())
        if (!dock->visibleRegion().isEmpty()) front += dock->windowTitle();
    shown["in front"] = front.join(", ");
    QStringList plates;
    const auto& list = *window.findChild<QListWidget*>();
    for (int row = 0; row < list.count(); ++row) {
        const auto& item = *list.item(row);
        if (item.isHidden()) continue;
        const bool chosen = &item == list.currentItem();
        plates += item.text() + (chosen ? " (chosen)" : "") + (item.flags() ? "" : " (disabled)");
    }
    shown["plates"] = plates.join(", ");
    const auto& difference = *window.findChild<DifferencePanel*>();
    const QStringList changes = difference.Text().split('\n').filter(QRegularExpression("^[^ ]"));
    if (!difference.isHidden() && difference.isVisible())
        shown["difference"] = changes.join("\n  ");
}

} // namespace

QString NameOf(const QAction& action) {
    return action.objectName().isEmpty() ? Plain(action.text()) : action.objectName();
}

QString NameOf(const QWidget& field) {
    for (const auto* label : field.window()->findChildren<QLabel*>())
        if (label->buddy() == &field) return Plain(label->text());
    const auto* button = qobject_cast<const QAbstractButton*>(&field);
    return button && field.accessibleName().isEmpty() ? Plain(button->text())
                                                      : field.accessibleName();
}

Shown FieldsOf(const QWidget& panel) {
    Shown shown;
    AddNotices(shown, panel);
    for (const auto* field : panel.findChildren<QWidget*>()) {
        const QString name = NameOf(*field);
        const QString value = ValueOf(*field);
        if (name.isEmpty() || value.isNull()) continue;
        shown[name] = value + (field->isEnabledTo(&panel) ? "" : " (disabled)");
    }
    return shown;
}

Shown StateOf(MainWindow& window) {
    Shown shown;
    shown["title"] = window.windowTitle().replace("[*]", window.isWindowModified() ? "*" : "");
    shown["height"] = QString::number(window.height()); // the least width differs with the fonts
    shown["status"] = window.statusBar()->currentMessage();
    for (const auto* label : window.statusBar()->findChildren<QLabel*>())
        shown["selection"] = label->text();
    AddNotices(shown, window);
    shown["volumes"] = window.findChild<VolumeLegend*>()->isHidden() ? "hidden" : "shown";
    AddActions(shown, window);
    AddPanels(shown, window);
    AddWells(shown, window.Session());
    return shown;
}

} // namespace zorvane::viewer
