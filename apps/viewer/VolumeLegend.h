#pragma once

#include <QWidget>

class QLabel;

namespace zorvane {

class PlateSession;

/// What the colours of the wells mean while they show volumes; hidden otherwise.
class VolumeLegend final : public QWidget {
    Q_OBJECT

  public:
    explicit VolumeLegend(PlateSession& session, QWidget* parent = nullptr);

  private:
    void Refresh();

    PlateSession& session_;
    QWidget* scale_;
    QLabel* least_;
    QLabel* greatest_;
    QLabel* missing_;
};

} // namespace zorvane
