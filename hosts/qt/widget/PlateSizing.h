#pragma once

#include <QSize>

namespace zorvane {

class PanelMirror;
class Plate;
class PlateWidget;
class StepRunner;

/// Keeps the size of a widget and that of the control in it fitting each other.
class PlateSizing final {
  public:
    PlateSizing(PlateWidget& widget, Plate& plate, PanelMirror& panel, StepRunner& steps);

    /// The size that the control last asked for, in device-independent pixels.
    QSize Asked() const { return asked_; }
    /// The control asks for a size. A layout that holds the widget decides by itself, and one that
    /// opens its panel gets no smaller in a place that shows a part of it.
    void Take(QSize size);

    /// The panel may have been closed: a widget whose place is managed asks for no more than
    /// before.
    void PanelChanged();

    /// Whether a plate of fixed size is fitted to each new size of the widget.
    bool RefitOnResize() const { return refitOnResize_; }
    void RefitOnResize(bool on);
    /// The widget has another size.
    void Resized();
    /// Another plate, or another definition of it, is shown.
    void PlateChanged() { Refit(); }
    /// A plate is about to be loaded. One that will be fitted is laid out first at the scale of the
    /// plate before, which may have been so small that this one is too large at that scale.
    /// Returns whether the widget is still there, as the next one does.
    bool AboutToLoad();

    /// Lays the plate out with its present settings.
    bool LayOut();

  private:
    void Refit();

    PlateWidget& widget_;
    Plate& plate_;
    PanelMirror& panel_;
    StepRunner& steps_;
    QSize asked_{400, 270};
    QSize closed_{asked_}; ///< asked for with the panel closed
    bool refitOnResize_ = false;
    bool refitting_ = false;
    bool loading_ = false;
};

} // namespace zorvane
