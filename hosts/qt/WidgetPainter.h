#pragma once

#include "hosts/qt/ShapeImages.h"
#include "hosts/qt/widget/HostedPlate.h"
#include "hosts/qt/widget/StepRunner.h"

#include <QRectF>

class QPaintEvent;
class QPainter;

namespace zorvane {

class PlateWidget;
class QtCanvas;

/// Paints a control in its widget: what the control shows, the outlines of a gesture over it, the
/// aids that are switched on and the focus ring.
class WidgetPainter final {
  public:
    WidgetPainter(PlateWidget& widget, HostedPlate& hosted, StepRunner& steps);
    ~WidgetPainter();
    WidgetPainter(const WidgetPainter&) = delete;
    WidgetPainter& operator=(const WidgetPainter&) = delete;

    void Paint(const QPaintEvent& event);

    /// The control asks for a repaint. Outlines that no gesture will erase go with it, as a window
    /// system would wipe them.
    void Repaint(const Rect& area, bool inGesture);
    /// Gives the outlines the present size of the plate area and the pixels of its screen, before
    /// a gesture begins.
    void FitOverlay();
    /// Returns whether there were any outlines.
    bool WipeOutlines();

    /// Lights up the legends of another well; -1 for none.
    void HoverOver(Integer wellNo);
    Integer Hovered() const { return hovered_; }
    void ShowFocusRing(bool on);

  private:
    void RepaintOutline(const Rect& pixels);
    void PaintPlate(QPainter& painter, const QRectF& clip);
    void PaintAids(QtCanvas& canvas);
    void PaintFocusRing(QPainter& painter);

    PlateWidget& widget_;
    Plate& plate_;
    PlateOverlay& overlay_;
    StepRunner& steps_;
    ShapeImages images_;
    Integer hovered_ = -1;
    bool bandLost_ = false; ///< wiped; the control puts a visible rubber band back
    bool ringShown_ = false;
};

} // namespace zorvane
