#include "apps/viewer/widgets/ColorButton.h"

#include <QColorDialog>
#include <QPainter>

namespace zorvane::viewer {

namespace {

QPixmap Swatch(const QColor& color, const QPalette& palette, qreal ratio) {
    constexpr QSize size(36, 14);
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(color);
    QPainter painter(&pixmap);
    painter.setPen(palette.color(QPalette::Mid));
    painter.drawRect(QRectF(QPointF(0, 0), size).adjusted(0.5, 0.5, -0.5, -0.5));
    return pixmap;
}

} // namespace

ColorButton::ColorButton(const QString& accessibleName, QWidget* parent) : QPushButton(parent) {
    setAccessibleName(accessibleName);
    setAutoDefault(false);
    setIconSize(QSize(36, 14));
    SetColor(Qt::white);
    connect(this, &QPushButton::clicked, this, &ColorButton::Choose);
}

void ColorButton::SetColor(const QColor& color) {
    color_ = color;
    setIcon(Swatch(color, palette(), devicePixelRatioF()));
    setText(color.name());
    setAccessibleDescription(color.name());
}

void ColorButton::Choose() {
    const QColor color = QColorDialog::getColor(color_, this, accessibleName());
    if (!color.isValid()) return;
    SetColor(color);
    emit chosen(color);
}

} // namespace zorvane::viewer
