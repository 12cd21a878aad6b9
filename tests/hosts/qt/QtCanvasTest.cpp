#include "hosts/qt/QtCanvas.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace zorvane {

namespace {

constexpr Rgb kRed{255, 0, 0};
constexpr QRgb kWhitePixel = 0xFFFFFFFF;
constexpr QRgb kBlackPixel = 0xFF000000;
constexpr QRgb kRedPixel = 0xFFFF0000;

/// A white picture of 40 by 40 device-independent pixels, painted on by `paint`.
template <class Paint>
QImage Painted(double ratio, Paint paint) {
    QImage image(qRound(40 * ratio), qRound(40 * ratio), QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setDevicePixelRatio(ratio);
    QPainter painter(&image);
    ShapeImages images;
    QtCanvas canvas(painter, images, QApplication::font(), QRectF(0, 0, 40, 40));
    paint(canvas);
    return image;
}

/// The smallest rectangle that holds every pixel which is not white.
QRect Extent(const QImage& image) {
    QRect extent;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != kWhitePixel) extent |= QRect(x, y, 1, 1);
    }
    return extent;
}

} // namespace

TEST(QtCanvas, ShapesFallOnWholeDevicePixels) {
    for (const double ratio : {1.0, 1.25, 2.0, 10.0}) {
        SCOPED_TRACE(ratio);
        // 30 by 20 pixels at (4, 8): the circle has 20 across and stands 5 further right. At the
        // last scale it is too large to be kept as an image.
        const QImage circle = Painted(ratio, [](QtCanvas& canvas) {
            canvas.DrawShape({ShapeKind::Circle, kRed, true}, {60, 120, 450, 300});
        });
        const int size = qRound(20 * ratio);
        const QRect round = Extent(circle);
        EXPECT_NEAR(round.left(), 9 * ratio, 0.51);
        EXPECT_EQ(round.top(), qRound(8 * ratio));
        EXPECT_EQ(round.size(), QSize(size, size));
        const int middle = round.top() + size / 2;
        EXPECT_EQ(circle.pixel(round.left() + 2, middle), kRedPixel);
        EXPECT_LT(qRed(circle.pixel(round.left(), middle)), 100);
        EXPECT_NE(circle.pixel(round.left() + size / 7, round.top() + size / 7), kRedPixel);

        const QImage box = Painted(ratio, [](QtCanvas& canvas) {
            canvas.DrawShape({ShapeKind::Rectangle, kRed, true}, {60, 60, 240, 120});
        });
        const QRect edge = Extent(box);
        EXPECT_EQ(edge, QRect(qRound(4 * ratio), qRound(4 * ratio), qRound(16 * ratio),
                              qRound(8 * ratio)));
        for (int x = edge.left() + 1; x < edge.right(); ++x) {
            EXPECT_EQ(box.pixel(x, edge.top()), kBlackPixel);
            EXPECT_EQ(box.pixel(x, edge.top() + 1), kRedPixel);
        }
    }
    ShapeImages images;
    EXPECT_EQ(images.Find({ShapeKind::Circle, kRed, true}, {257, 257}), nullptr);
    EXPECT_EQ(images.Find({ShapeKind::Circle, kRed, true}, {0, 5}), nullptr);
}

} // namespace zorvane
