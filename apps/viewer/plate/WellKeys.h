#pragma once

#include "runtime/Types.h"

#include <QObject>

#include <optional>

namespace zorvane::viewer {

class PlateSession;

/// The keys that the viewer gives the plate in addition to its own: Home and End lead to the ends
/// of the row, Page Up and Page Down to those of the column, with Ctrl Home and End to the first
/// and last well of the sub-well. Space selects the current well or takes it out of the selection.
class WellKeys final : public QObject {
    Q_OBJECT

  public:
    explicit WellKeys(PlateSession& session);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::optional<Integer> Target(int key, bool ctrl, Integer from) const;
    void Toggle(Integer well);

    PlateSession& session_;
};

} // namespace zorvane::viewer
