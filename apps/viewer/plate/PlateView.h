#pragma once

#include <QStackedWidget>

class QScrollArea;

namespace zorvane {
class PlateWidget;
}

namespace zorvane::viewer {

class PlateSession;

/// The middle of the window: the plate with its legend, or a way to open a library before there is
/// one.
class PlateView final : public QStackedWidget {
    Q_OBJECT

  public:
    explicit PlateView(QWidget* parent = nullptr);

    PlateWidget& Widget() { return *plate_; }
    /// Puts the legend under the plate and shows the plate as soon as one is open.
    void SetSession(PlateSession& session);
    /// Lets the plate fill the room, or scrolls over a plate of its own size.
    void SetFitted(bool on);

  signals:
    /// The operator asks for a library, none being open.
    void openAsked();

  private:
    QWidget* MakeStartPage();

    QScrollArea* scroll_;
    PlateWidget* plate_;
    QWidget* page_;
};

} // namespace zorvane::viewer
