#include "apps/viewer/plate/CurrentWellMark.h"

#include "apps/viewer/PlateSession.h"
#include "drawing/Canvas.h"
#include "hosts/qt/Units.h"

#include <QPainter>

#include <utility>

namespace zorvane::viewer {

namespace {

constexpr int kMargin = 4;

} // namespace

CurrentWellMark::CurrentWellMark(PlateSession& session)
    : QWidget(&session.Widget()), session_(session) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    connect(&session, &PlateSession::changed, this, &CurrentWellMark::Follow);
    connect(&session.Widget(), &PlateWidget::panelChanged, this, &CurrentWellMark::Follow);
    Follow();
}

void CurrentWellMark::Follow() {
    const auto well = session_.CurrentWell();
    const Surface& surface = session_.Control().Elements();
    setVisible(well && surface.fraPlate.visible && !surface.fraData.visible);
    if (!isVisibleTo(parentWidget())) return;
    const Shape& shape = surface.WellRim[static_cast<std::size_t>(*well)];
    round_ = shape.kind == ShapeKind::Circle;
    const QRectF rim = ToPixels(round_ ? CentredSquare(shape.box) : shape.box);
    const QPointF origin = ToPixels(surface.fraPlate.box).topLeft();
    setGeometry(
        rim.translated(origin).toAlignedRect().adjusted(-kMargin, -kMargin, kMargin, kMargin));
}

// Two rings, one light and one dark, show on wells of any colour.
void CurrentWellMark::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ring = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    for (const auto& [role, width] : {std::pair{QPalette::Base, 3}, {QPalette::Highlight, 2}}) {
        painter.setPen(QPen(palette().color(role), width));
        const double radius = round_ ? ring.height() / 2 : kMargin;
        painter.drawRoundedRect(ring, radius, radius);
    }
}

} // namespace zorvane::viewer
