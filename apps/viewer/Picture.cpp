#include "apps/viewer/Picture.h"

#include "apps/viewer/texts/ErrorText.h"
#include "drawing/PlatePicture.h"
#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/QtPalette.h"
#include "hosts/qt/Units.h"
#include "runtime/RuntimeError.h"

#include <QApplication>
#include <QImageWriter>
#include <QPainter>

#include <algorithm>

namespace zorvane::viewer {

namespace {

constexpr int kWidth = 1000;
constexpr int kRoomForLegends = 40;
constexpr int kLeastHeight = 100;
constexpr int kMargin = 8;

QImage ImageOf(PlatePicture& picture) {
    Plate& plate = picture.Control();
    plate.HorizontalCentred = false;
    plate.VerticalCentred = false;
    const double height = kWidth * double{plate.yOverall} / double{plate.xOverall};
    picture.FitInto(
        ToUnits(kWidth),
        ToUnits(qRound(std::clamp<double>(height, kLeastHeight, kLongestSide)) + kRoomForLegends));
    const QSize area = ToPixels(plate.Elements().fraPlate.box).toAlignedRect().size();
    const QPalette palette = QApplication::palette();
    QImage image(area.grownBy({kMargin, kMargin, kMargin, kMargin}), QImage::Format_RGB32);
    image.fill(palette.color(QPalette::Window));
    QPainter painter(&image);
    painter.translate(kMargin, kMargin);
    ShapeImages images;
    QtCanvas canvas(painter, images, QApplication::font(), QRect({}, area));
    picture.Paint(canvas, SystemColors(palette));
    return image;
}

} // namespace

QString WritePicture(const QString& library, const QString& plateName, const QString& file) {
    try {
        PlatePicture picture({.plate = plateName.toStdString(), .fileName = library.toStdString()});
        QImageWriter writer(file);
        if (writer.write(ImageOf(picture))) return {};
        return file + QStringLiteral(": ") + writer.errorString();
    } catch (const RuntimeError& error) {
        return ErrorText(error);
    }
}

} // namespace zorvane::viewer
