#pragma once

#include "control/Plate.h"

#include <QCoreApplication>
#include <QString>

#include <optional>

namespace zorvane {

/// Loads plates without showing what goes wrong.
class QuietLoad final {
    Q_DECLARE_TR_FUNCTIONS(zorvane::PlateWidget)

  public:
    struct Failure {
        int number; ///< that of a RuntimeError, or 0
        QString source;
        QString reason;
    };

    /// Returns why the plate could not be loaded, if so.
    static std::optional<Failure> Run(Plate& plate, const String& name, const String& library);
};

} // namespace zorvane
