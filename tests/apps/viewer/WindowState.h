#pragma once

#include "apps/viewer/window/MainWindow.h"

#include <QMap>

namespace zorvane::viewer {

/// Names and texts of what a window shows.
using Shown = QMap<QString, QString>;

/// What the operator calls a field: its label, its own text or its name for screen readers.
QString NameOf(const QWidget& field);
/// What the operator calls an action, or its own name where the text changes.
QString NameOf(const QAction& action);
/// The fields of a panel or dialog that have a name, and its notices.
Shown FieldsOf(const QWidget& panel);
/// The viewer's window: title, actions, panels, and each well that is not as in an empty plate.
Shown StateOf(MainWindow& window);

} // namespace zorvane::viewer
