#include "drawing/PlatePainter.h"
#include "hosts/qt/PanelMirror.h"
#include "hosts/qt/PlateWidget.h"
#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/QtPalette.h"
#include "hosts/qt/Units.h"
#include "platform/Process.h"

#include <QPaintEvent>
#include <QPainter>

namespace zorvane {

// Between gestures a change of what is shown wipes stray outlines, as a window system would. During
// one they stay: the control goes on to erase what it has drawn.
void PlateWidget::ContentChanged(const Rect& area) {
    if (pressed_ == Part::None && site_->Overlay().Clear()) {
        bandLost_ = true;
        update();
    }
    if (area.Intersects(plate_->Elements().cmdData.box)) MirrorDataButton();
    update(ToPixels(area).toAlignedRect());
}

void PlateWidget::OutlineChanged(const Rect& pixels) {
    const QPointF origin = ToPixels(plate_->Elements().fraPlate.box).topLeft();
    update(site_->Overlay().Shown(pixels).translated(origin).toAlignedRect());
}

void PlateWidget::FitOverlay() {
    const qreal ratio =
        double{kUnitsPerPixel} / double{CurrentProcess().TheScreen().TwipsPerPixelX()};
    const QSizeF area = ToPixels(plate_->Elements().fraPlate.box).size();
    if (site_->Overlay().Fit(area, ratio)) bandLost_ = true;
}

void PlateWidget::MirrorDataButton() {
    const Button& button = plate_->Elements().cmdData;
    QFont bold = font();
    bold.setPixelSize(qRound(ToPixels(kFontHeight)));
    bold.setBold(button.bold);
    dataButton_.setFont(bold);
    dataButton_.setText(QString::fromStdString(button.caption));
    dataButton_.setGeometry(ToPixels(button.box).toRect());
    dataButton_.setEnabled(button.enabled);
    dataButton_.setVisible(button.visible);
}

void PlateWidget::paintEvent(QPaintEvent* event) {
    FitOverlay();
    if (bandLost_) Try([this] { plate_->Paint(); });
    bandLost_ = false;

    QPainter painter(this);
    PaintPlate(painter, event->rect());
    if (ringShown_) PaintFocusRing(painter);
}

void PlateWidget::PaintPlate(QPainter& painter, const QRectF& clip) {
    const Surface& surface = plate_->Elements();
    QtCanvas canvas(painter, images_, font(), clip);
    PaintControl(surface, SystemColors(palette()), canvas);
    PaintHints(canvas);
    if (surface.fraPlate.visible) {
        site_->Overlay().Paint(painter, canvas.DevicePixels(surface.fraPlate.box),
                               canvas.DevicePixels(canvas.Clip()));
    }
}

// A style's focus frame may tint what it surrounds, where the colours of wells mean something.
void PlateWidget::PaintFocusRing(QPainter& painter) {
    const QRectF area = ToPixels(plate_->Elements().fraPlate.box) & QRectF(rect());
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(area.adjusted(1, 1, -1, -1));
}

void PlateWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) MirrorDataButton();
    if (panel_) panel_->Sync();
    update(); // colours, font and style all show
}

} // namespace zorvane
