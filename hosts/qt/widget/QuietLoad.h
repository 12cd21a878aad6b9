#pragma once

#include <QCoreApplication>
#include <QString>

#include <functional>
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

    /// Returns why a plate could not be loaded, if so; `load` returns whether it could.
    static std::optional<Failure> Run(const std::function<bool()>& load);
};

} // namespace zorvane
