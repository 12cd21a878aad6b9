#include "hosts/qt/WidgetPainter.h"

#include "drawing/PlatePainter.h"
#include "hosts/qt/PlateWidget.h"
#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/QtPalette.h"
#include "hosts/qt/Units.h"
#include "hosts/qt/aids/PlateHints.h"
#include "platform/Process.h"

#include <QPaintEvent>
#include <QPainter>

#include <utility>

namespace zorvane {

namespace {

constexpr Long kHighlight = SystemColor(0x0D);
constexpr Long kHighlightText = SystemColor(0x0E);

} // namespace

WidgetPainter::WidgetPainter(PlateWidget& widget, HostedPlate& hosted, StepRunner& steps)
    : widget_(widget), plate_(hosted.plate), overlay_(hosted.site.Overlay()), steps_(steps) {
    overlay_.Context().onChange = [this](const Rect& pixels) { RepaintOutline(pixels); };
}

WidgetPainter::~WidgetPainter() { overlay_.Context().onChange = {}; }

void WidgetPainter::Repaint(const Rect& area, bool inGesture) {
    if (!inGesture) bandLost_ = WipeOutlines() || bandLost_;
    widget_.update(ToPixels(area).toAlignedRect());
}

void WidgetPainter::FitOverlay() {
    const qreal ratio =
        double{kUnitsPerPixel} / double{CurrentProcess().TheScreen().TwipsPerPixelX()};
    const QSizeF area = ToPixels(plate_.Elements().fraPlate.box).size();
    if (overlay_.Fit(area, ratio)) bandLost_ = true;
}

bool WidgetPainter::WipeOutlines() {
    const bool any = overlay_.Clear();
    if (any) widget_.update();
    return any;
}

void WidgetPainter::RepaintOutline(const Rect& pixels) {
    const QPointF origin = ToPixels(plate_.Elements().fraPlate.box).topLeft();
    widget_.update(overlay_.Shown(pixels).translated(origin).toAlignedRect());
}

void WidgetPainter::HoverOver(Integer wellNo) {
    if (wellNo == hovered_) return;
    const Integer before = std::exchange(hovered_, wellNo);
    if (!widget_.aids().testFlag(PlateWidget::Aid::HighlightLegends)) return;
    for (const Integer well : {before, wellNo})
        widget_.update(ToPixels(HighlightedLegends(plate_, well)).toAlignedRect());
}

void WidgetPainter::ShowFocusRing(bool on) {
    if (on == ringShown_) return;
    ringShown_ = on;
    widget_.update();
}

void WidgetPainter::Paint(const QPaintEvent& event) {
    FitOverlay();
    if (std::exchange(bandLost_, false)) steps_.Run([this] { plate_.Paint(); });

    QPainter painter(&widget_);
    PaintPlate(painter, event.rect());
    if (ringShown_) PaintFocusRing(painter);
}

void WidgetPainter::PaintPlate(QPainter& painter, const QRectF& clip) {
    const Surface& surface = plate_.Elements();
    QtCanvas canvas(painter, images_, widget_.font(), clip);
    PaintControl(surface, SystemColors(widget_.palette()), canvas, Details::Native);
    PaintAids(canvas);
    if (surface.fraPlate.visible) {
        overlay_.Paint(painter, canvas.DevicePixels(surface.fraPlate.box),
                       canvas.DevicePixels(canvas.Clip()));
    }
}

void WidgetPainter::PaintAids(QtCanvas& canvas) {
    const PlateWidget::Aids aids = widget_.aids();
    if (aids.testFlag(PlateWidget::Aid::ErrorMarks)) MarkErrors(plate_, canvas);
    if (aids.testFlag(PlateWidget::Aid::HighlightLegends)) {
        const SystemPalette colors = SystemColors(widget_.palette());
        HighlightLegends(plate_, hovered_, Resolve(kHighlight, colors),
                         Resolve(kHighlightText, colors), canvas);
    }
}

// A style's focus frame may tint what it surrounds, where the colours of wells mean something.
void WidgetPainter::PaintFocusRing(QPainter& painter) {
    const QRectF area = ToPixels(plate_.Elements().fraPlate.box) & QRectF(widget_.rect());
    painter.setPen(QPen(widget_.palette().color(QPalette::Highlight), 2));
    painter.drawRect(area.adjusted(1, 1, -1, -1));
}

} // namespace zorvane
