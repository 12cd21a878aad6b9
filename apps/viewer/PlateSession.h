#pragma once

#include "apps/viewer/logic/VolumeColoring.h"
#include "apps/viewer/logic/WellSnapshot.h"
#include "hosts/qt/PlateWidget.h"
#include "runtime/RuntimeError.h"
#include "welldata/WellNames.h"

#include <QObject>
#include <QString>

#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace zorvane {

/// The plate on the screen: opens it, changes its wells, and tells the panels that show it. The
/// wells of a plate are kept while other plates of the same library are looked at.
class PlateSession final : public QObject {
    Q_OBJECT

  public:
    PlateSession(PlateWidget& widget, QObject* parent);

    PlateWidget& Widget() { return widget_; }
    Plate& Control() { return widget_.plate(); }
    const Plate& Control() const { return widget_.plate(); }
    const WellNames& Names() const { return names_; }
    const VolumeColoring& Coloring() const { return coloring_; }

    /// Shows a plate with its first well as the current one. When it cannot, the control has said
    /// why, and the plate before it stays.
    bool Open(const QString& library, const QString& plateName);
    /// Shows another definition of the plate, whose wells keep their data where there are as many.
    bool ShowDefinition(const String& text);
    /// The plate has been laid out anew: the panels are to show it as it is now.
    void TakeLayout();
    /// True when a plate with wells is shown.
    bool HasWells() const { return Control().TotalWells() > 0; }
    /// The current well, or none when it is no well of the plate.
    std::optional<Integer> CurrentWell() const;
    std::vector<Integer> SelectedWells() const;

    /// Runs a change of the wells. Emits failed() when it fails, and changed() in any case.
    template <class Change>
    bool Edit(Change&& change) {
        bool done = false;
        try {
            coloring_.Around(std::forward<Change>(change));
            done = true;
        } catch (const RuntimeError& error) {
            emit failed(QString::fromStdString(error.Description()));
        }
        widget_.update(); // error codes alone repaint nothing, but are marked
        emit changed();
        return done;
    }

    void ColorByVolume(bool on);
    void SetSelectBoxEnabled(bool on);
    /// Moves the data of the selected wells; emits failed() when a well would leave the plate.
    void MoveSelection(int columns, int rows);
    void ClearSelectedWells();
    void Deselect();

  signals:
    /// Another plate is shown.
    void opened();
    /// The current well, the selection, the layout or some well's data may have changed.
    void changed();
    /// Something asked for was not done.
    void failed(const QString& reason);
    /// The control could not do what the operator asked of it; failed() comes too.
    void refused(int number, const QString& description);
    /// The plate is being given input by the operator; comes before the plate has taken it.
    void inputSeen();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void ReportLater();
    void ReportInput();
    void ClearSelection();
    void KeepWells();
    void BringWellsBack();

    PlateWidget& widget_;
    VolumeColoring coloring_;
    WellNames names_;
    bool selectBox_ = false;
    bool reporting_ = false;
    QString library_;
    std::map<String, std::vector<WellSnapshot>> kept_; // by plate name
};

} // namespace zorvane
