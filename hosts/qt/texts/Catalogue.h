#pragma once

#include <QLocale>
#include <QString>

namespace zorvane {

/// Installs the catalogue "<name>_<language>.qm" of a folder for the first of a locale's languages
/// that there is one for, in place of the one that this call has installed for that name before.
/// English needs none, so that no language after it counts. Returns whether one was found.
bool InstallCatalogue(const QString& name, const QString& folder, const QLocale& locale);

} // namespace zorvane
