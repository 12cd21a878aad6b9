#pragma once

#include <QStackedWidget>

class QLabel;
class QScrollArea;

namespace zorvane {
class PlateWidget;
}

namespace zorvane::viewer {

class PlateSession;

/// The middle of the window: the plate with its legend, or a hint while there is none.
class PlateView final : public QStackedWidget {
    Q_OBJECT

  public:
    explicit PlateView(QWidget* parent = nullptr);

    PlateWidget& Widget() { return *plate_; }
    /// Puts the legend under the plate and shows the plate as soon as one is open.
    void SetSession(PlateSession& session);
    /// Lets the plate fill the room, or scrolls over a plate of its own size.
    void SetFitted(bool on);

  private:
    QScrollArea* scroll_;
    PlateWidget* plate_;
    QWidget* page_;
};

} // namespace zorvane::viewer
