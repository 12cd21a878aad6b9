#pragma once

#include "apps/viewer/WellHistory.h"
#include "apps/viewer/logic/VolumeColoring.h"
#include "apps/viewer/logic/WellArchive.h"
#include "apps/viewer/texts/ErrorText.h"
#include "control/WellNames.h"
#include "hosts/qt/PlateWidget.h"
#include "runtime/RuntimeError.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace zorvane::viewer {

/// The plate on the screen: opens it, changes its wells and notifies the panels that show it. The
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
    /// What can be undone of the wells' data.
    WellHistory& History() { return history_; }

    /// Shows a plate with its first well as the current one. When it cannot, the control has shown
    /// the reason, and the plate before it stays.
    bool Open(const QString& library, const QString& plateName);
    /// Shows another definition of the plate. Its wells keep their data if there are as many.
    bool ShowDefinition(const String& text);
    /// True when a plate with wells is shown.
    bool HasWells() const { return Control().TotalWells() > 0; }
    /// The current well, or none when it is no well of the plate.
    std::optional<Integer> CurrentWell() const;
    std::vector<Integer> SelectedWells() const;
    /// The plates of the library whose wells have data that no file holds.
    QStringList PlatesNotInFile();
    /// A file holds the data of the plate that is shown.
    void DataIsInFile();

    /// Runs a change of the plate, of which the panels hear once it is complete. Emits failed()
    /// when it fails, and changed() in any case.
    template <class Change>
    bool Edit(Change&& change) {
        bool done = false;
        {
            const Hold hold(*this);
            try {
                coloring_.WithOwnColors(std::forward<Change>(change));
                done = true;
            } catch (const RuntimeError& error) {
                emit failed(ErrorText(error));
            }
        }
        return done;
    }

    /// Runs a change of the wells' data, as a step with a name that can be undone. Changes of one
    /// field follow one another into a single step. A change that fails leaves the wells as they
    /// were.
    bool EditWells(const QString& name, const std::function<void()>& change,
                   const QObject* field = nullptr);

    void ColorByVolume(bool on);
    void SetSelectBoxEnabled(bool on);
    /// Moves the data of the selected wells; emits failed() when a well would leave the plate.
    void MoveSelection(int columns, int rows);
    void ClearSelectedWells();
    void Deselect();

  signals:
    /// Another plate is shown.
    void opened();
    /// The sub-wells of the plate, or their names, are others.
    void subWellsChanged();
    /// The current well, the selection, the layout or some well's data may have changed.
    void changed();
    /// Something asked for was not done.
    void failed(const QString& reason);
    /// The control could not do what the operator asked of it; failed() comes too.
    void refused(int number, const QString& description);

  private:
    /// Keeps the panels from following each step of a change.
    class Hold {
      public:
        explicit Hold(PlateSession& session) : session_(session) { ++session_.holds_; }
        ~Hold() {
            if (--session_.holds_ == 0) session_.Report();
        }
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;

      private:
        PlateSession& session_;
    };

    void Report();
    void ReadNames();
    void Archive();
    void KeepWells();
    void Show(const WellState& state);
    void BringWellsBack();

    PlateWidget& widget_;
    VolumeColoring coloring_;
    WellNames names_;
    bool selectBox_ = false;
    int holds_ = 0;
    bool namesOutdated_ = false;
    QString library_;
    WellArchive archive_;
    WellHistory history_{[this](const WellState& state) { Edit([&] { Show(state); }); }};
};

} // namespace zorvane::viewer
