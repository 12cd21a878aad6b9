#pragma once

#include "control/InputRouter.h"
#include "hosts/qt/aids/InputAids.h"

#include <QPointF>

class QHelpEvent;
class QKeyEvent;
class QMouseEvent;

namespace zorvane {

class PlateSignals;
class PlateWidget;
class StepRunner;
class WidgetPainter;

/// Hands the pointer and key events of a widget to the control in it, and shows what the control
/// says about the place under the pointer.
class PlateInput final : private InputRouter::Host {
  public:
    PlateInput(PlateWidget& widget, Plate& plate, WidgetPainter& painter, StepRunner& steps,
               PlateSignals& observer);

    /// Whether a button is held that went down on the widget.
    bool InGesture() const { return router_.Held() != InputRouter::Part::None; }
    /// The well shown at a place of the widget, or -1.
    Integer WellAt(QPointF position) const;

    void Press(const QMouseEvent& event);
    void DoubleClick(const QMouseEvent& event);
    void Move(const QMouseEvent& event);
    void Release(const QMouseEvent& event);
    void Leave();
    void KeyPress(QKeyEvent& event);
    void KeyRelease(QKeyEvent& event);
    void ShowToolTip(const QHelpEvent& event);

  private:
    Boolean Attempt(const std::function<void()>& call) override;
    Boolean AnswerPress(Integer button, Integer shift, InputRouter::Spot at) override;
    void GestureEnded() override;
    Boolean PanelIsApart() const override;

    bool IsOverPlate(QPointF position) const;
    QString ToolTip() const;
    void HoverOver(Integer wellNo);
    void ChooseSubWell();
    void ShowPointer(bool overPlate);

    PlateWidget& widget_;
    Plate& plate_;
    WidgetPainter& painter_;
    StepRunner& steps_;
    PlateSignals& observer_;
    InputRouter router_;
    InputAids aids_;
    Integer pressed_ = -1; ///< the well on which a button went down last
};

} // namespace zorvane
