#include "hosts/qt/PlateImage.h"

#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/ShapeImages.h"
#include "hosts/qt/Units.h"

#include <QGuiApplication>
#include <QPainter>

namespace zorvane {

QImage DrawPlateImage(const PictureRequest& request, qreal devicePixelRatio) {
    const PlatePicture picture(request);
    const QRect area = ToPixels(picture.Area()).toAlignedRect();
    QImage image(area.size() * devicePixelRatio, QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatio);
    {
        QPainter painter(&image);
        ShapeImages images;
        QtCanvas canvas(painter, images, QGuiApplication::font(), area);
        picture.Paint(canvas);
    }
    return image;
}

} // namespace zorvane
