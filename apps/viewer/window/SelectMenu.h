#pragma once

#include "runtime/Types.h"

#include <QMenu>

#include <functional>

namespace zorvane::viewer {

class PlateSession;

/// The menu that selects wells of the plate, many of them at once.
class SelectMenu final : public QMenu {
    Q_OBJECT

  public:
    SelectMenu(PlateSession& session, QWidget* parent);

  private:
    /// Given the current well, returns whether another is to be selected.
    using Rule = std::function<bool(Integer current, Integer well)>;

    void Add(const QString& text, Rule rule);
    void Select(const Rule& rule);

    PlateSession& session_;
};

} // namespace zorvane::viewer
