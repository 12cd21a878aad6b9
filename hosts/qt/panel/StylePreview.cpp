#include "hosts/qt/panel/StylePreview.h"

#include "hosts/qt/QtPalette.h"
#include "hosts/qt/Units.h"

#include <QPainter>

namespace zorvane {

void StylePreview::Show(const Shape& rim, const Shape& well, const SystemPalette& colors) {
    const QPointF origin = ToPixels(rim.box).topLeft();
    const auto sample = [&](const Shape& shape) {
        return Sample{ToPixels(shape.box).translated(-origin), ToColor(Resolve(shape.fill, colors)),
                      shape.kind == ShapeKind::Oval};
    };
    const Sample newRim = sample(rim);
    const Sample newWell = sample(well);
    if (newRim == rim_ && newWell == well_) return;
    rim_ = newRim;
    well_ = newWell;
    update();
}

void StylePreview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 1));
    for (const Sample& sample : {rim_, well_}) {
        const QRectF box = sample.box.adjusted(0.5, 0.5, -0.5, -0.5);
        painter.setBrush(sample.fill);
        if (sample.round) {
            painter.drawEllipse(box);
        } else {
            painter.drawRect(box);
        }
    }
}

} // namespace zorvane
