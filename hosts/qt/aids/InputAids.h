#pragma once

#include "control/InputRouter.h"
#include "hosts/qt/aids/SelectionAids.h"

class QKeyEvent;

namespace zorvane {

class PlateSignals;
class PlateWidget;
class StepRunner;

/// Answers the input that the aids of a widget give a meaning of their own, before the control sees
/// it.
class InputAids final {
  public:
    InputAids(PlateWidget& widget, Plate& plate, StepRunner& steps, PlateSignals& observer)
        : widget_(widget), plate_(plate), steps_(steps), observer_(observer), selection_(plate) {}

    /// Each returns whether an aid has answered the input, which the control is then not given.
    bool TakesPress(Integer button, Integer shift, InputRouter::Spot at);
    bool TakesKey(const QKeyEvent& event);
    /// An arrow key has moved the current well from this one.
    void Moved(Integer from, Integer shift);

  private:
    bool IsWell(Integer number) const { return number >= 0 && number < plate_.TotalWells(); }
    bool SelectsLegend(Integer shift, InputRouter::Spot at);
    bool ExtendsSelection(Integer shift, InputRouter::Spot at);
    template <class Selection>
    void Select(Selection selection);

    PlateWidget& widget_;
    Plate& plate_;
    StepRunner& steps_;
    PlateSignals& observer_;
    SelectionAids selection_;
};

} // namespace zorvane
