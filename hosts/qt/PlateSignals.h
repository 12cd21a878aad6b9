#pragma once

#include "hosts/qt/PlateWidget.h"

namespace zorvane {

/// Emits what a control tells its observers as signals of the widget that shows it.
class PlateSignals final : public PlateObserver {
  public:
    PlateSignals(PlateWidget& widget, Plate& plate) : widget_(widget), plate_(plate) {
        plate_.AddObserver(*this);
    }
    ~PlateSignals() override { plate_.RemoveObserver(*this); }
    PlateSignals(const PlateSignals&) = delete;
    PlateSignals& operator=(const PlateSignals&) = delete;

    void DoubleClick() override { emit widget_.doubleClicked(); }
    void Click() override { emit widget_.clicked(); }
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

    void CurrentWellChanged(Integer wellNo) override { emit widget_.currentWellChanged(wellNo); }
    void SelectionChanged() override { emit widget_.selectionChanged(); }
    void WellDataChanged(Integer first, Integer last) override {
        emit widget_.wellDataChanged(first, last);
    }
    void PlateChanged() override { emit widget_.plateChanged(); }

  private:
    PlateWidget& widget_;
    Plate& plate_;
};

} // namespace zorvane
