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

TEST(QtCanvas, CirclesAreRoundCentredAndOutlinedByOneDevicePixel) {
    for (const double ratio : {1.0, 1.25, 2.0}) {
        SCOPED_TRACE(ratio);
        // 30 by 20 pixels at (4, 8): the circle has 20 across and stands 5 further right.
        const QImage image = Painted(ratio, [](QtCanvas& canvas) {
            canvas.DrawShape({ShapeKind::Circle, kRed, true}, {60, 120, 450, 300});
        });
        const int size = qRound(20 * ratio);
        const QRect extent = Extent(image);
        EXPECT_NEAR(extent.left(), 9 * ratio, 0.51);
        EXPECT_EQ(extent.top(), qRound(8 * ratio));
        EXPECT_EQ(extent.size(), QSize(size, size));

        const int middle = extent.top() + size / 2;
        EXPECT_EQ(image.pixel(extent.left() + 2, middle), kRedPixel);
        EXPECT_LT(qRed(image.pixel(extent.left(), middle)), 100);
        EXPECT_NE(image.pixel(extent.left() + size / 7, extent.top() + size / 7), kRedPixel);
    }
}

TEST(QtCanvas, RectanglesAreCrispAtEveryScale) {
    for (const double ratio : {1.0, 1.25, 2.0}) {
        SCOPED_TRACE(ratio);
        const QImage image = Painted(ratio, [](QtCanvas& canvas) {
            canvas.DrawShape({ShapeKind::Rectangle, kRed, true}, {60, 60, 240, 120});
        });
        const QRect extent = Extent(image);
        EXPECT_EQ(extent, QRect(qRound(4 * ratio), qRound(4 * ratio), qRound(16 * ratio),
                                qRound(8 * ratio)));
        for (int x = extent.left(); x <= extent.right(); ++x) {
            EXPECT_EQ(image.pixel(x, extent.top()), kBlackPixel);
            EXPECT_EQ(image.pixel(x, extent.bottom()), kBlackPixel);
        }
        for (int x = extent.left() + 1; x < extent.right(); ++x)
            EXPECT_EQ(image.pixel(x, extent.top() + 1), kRedPixel);
    }
}

TEST(QtCanvas, ShapesTooLargeToKeepLookLikeTheOthers) {
    ShapeImages images;
    const ShapeStyle style{ShapeKind::Circle, kRed, true};
    ASSERT_NE(images.Find(style, {256, 256}), nullptr);
    ASSERT_EQ(images.Find(style, {257, 257}), nullptr);
    ASSERT_EQ(images.Find(style, {0, 5}), nullptr);
    const QImage image = Painted(10, [&](QtCanvas& canvas) {
        canvas.DrawShape(style, {15, 15, 450, 450});
    });
    EXPECT_EQ(Extent(image), QRect(10, 10, 300, 300));
    EXPECT_EQ(image.pixel(160, 160), kRedPixel);
}

} // namespace zorvane
