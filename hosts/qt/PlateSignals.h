#pragma once

#include "hosts/qt/PlateWidget.h"

namespace zorvane {

/// Emits the events of a control as signals of the widget that shows it.
class PlateSignals final : public PlateObserver {
  public:
    explicit PlateSignals(PlateWidget& widget) : widget_(widget) {}

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

  private:
    PlateWidget& widget_;
};

} // namespace zorvane
