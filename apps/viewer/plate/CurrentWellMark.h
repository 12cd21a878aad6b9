#pragma once

#include <QWidget>

namespace zorvane::viewer {

class PlateSession;

/// A ring around the current well, which the control itself does not show.
class CurrentWellMark final : public QWidget {
    Q_OBJECT

  public:
    explicit CurrentWellMark(PlateSession& session);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void Follow();

    PlateSession& session_;
    bool round_ = false;
};

} // namespace zorvane::viewer
