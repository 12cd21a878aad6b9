#pragma once

#include <QWidget>

#include <vector>

class QGridLayout;
class QLabel;

namespace zorvane {
class VolumeScale;
}

namespace zorvane::viewer {

class PlateSession;

/// What the colours of the wells mean while they show volumes: a scale for each sub-well that has
/// volumes. Hidden otherwise.
class VolumeLegend final : public QWidget {
    Q_OBJECT

  public:
    explicit VolumeLegend(PlateSession& session, QWidget* parent = nullptr);

  private:
    /// The scale of one sub-well.
    struct Line {
        QLabel* name;
        QLabel* least;
        QWidget* bar;
        QLabel* greatest;
    };

    void ListSubWells();
    void Refresh();
    static void Show(const Line& line, const VolumeScale& scale);

    PlateSession& session_;
    QGridLayout* grid_;
    QLabel* missing_;
    std::vector<Line> lines_;
};

} // namespace zorvane::viewer
