#pragma once

#include "hosts/qt/PlateWidget.h"

#include <QPointer>

#include <limits>

namespace zorvane {

/// Emits what a control tells its observers as signals of the widget that shows it.
class PlateSignals final : public PlateObserver {
  public:
    PlateSignals(PlateWidget& widget, Plate& plate);
    ~PlateSignals() override { plate_.RemoveObserver(*this); }
    PlateSignals(const PlateSignals&) = delete;
    PlateSignals& operator=(const PlateSignals&) = delete;

    /// Runs several calls of the control as one operation: what changes is told at the end, and a
    /// current well that is back by then has not changed.
    template <class Step>
    void Gather(Step step) {
        const QPointer<PlateWidget> shown(&widget_);
        if (gathering_++ == 0) wellBefore_ = plate_.CurrentWell();
        try {
            step();
        } catch (...) {
            if (shown) EndGathering();
            throw;
        }
        if (shown) EndGathering();
    }

    /// The click or double click that comes next is on this well; -1 for none.
    void PointAt(Integer wellNo) { pointed_ = wellNo; }
    /// Emits changes of the properties that have signals of their own.
    void TellProperties();

    void DoubleClick() override;
    void Click() override;
    void SelectWell(Integer wellNo) override { emit widget_.wellSelected(wellNo); }
    void SelectMultipleWells() override { emit widget_.multipleWellsSelected(); }
    void MouseDown(Integer button, Integer shift, Single x, Single y) override {
        emit widget_.mousePressed(button, shift, x, y);
    }
    void MouseUp(Integer button, Integer shift, Single x, Single y) override {
        emit widget_.mouseReleased(button, shift, x, y);
    }
    void DragMove(Integer button, Integer shift, Integer columns, Integer rows) override {
        emit widget_.dragMoved(button, shift, columns, rows);
    }
    void ApplyChanges() override { emit widget_.changesApplied(); }

    void PlateChanged() override { Add({.plate = true}); }
    void CurrentWellChanged(Integer /*wellNo*/) override { Add({.currentWell = true}); }
    void SelectionChanged() override { Add({.selection = true}); }
    void WellDataChanged(Integer first, Integer last) override {
        Add({.firstWell = first, .lastWell = last});
    }

  private:
    struct Changes {
        bool plate = false;
        bool currentWell = false;
        bool selection = false;
        // The wells whose data has changed; there are none while the first is beyond the last.
        Integer firstWell = std::numeric_limits<Integer>::max();
        Integer lastWell = -1;
    };
    /// The properties that have signals of their own.
    struct Properties {
        QString fileName;
        QString plateName;
        bool dataVisible = false;
        bool editsPending = false;
    };

    void Add(const Changes& changes);
    void EndGathering();
    void Tell(const Changes& changes);
    Properties Present() const;

    PlateWidget& widget_;
    Plate& plate_;
    Properties told_;
    Integer pointed_ = -1;
    int gathering_ = 0;
    Integer wellBefore_ = 0;
    Changes gathered_;
};

} // namespace zorvane
