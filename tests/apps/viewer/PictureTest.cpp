#include "apps/viewer/Picture.h"

#include "TempFile.h"

#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>

namespace zorvane {
namespace {

int ChangesAlong(const QImage& picture, int y) {
    int changes = 0;
    for (int x = 1; x < picture.width(); ++x)
        changes += picture.pixel(x, y) != picture.pixel(x - 1, y);
    return changes;
}

TEST(Picture, ShowsThePlate) {
    const TempFile file;
    const QString path = QString::fromStdString(file.Path()) + ".png";
    EXPECT_EQ(WritePicture(ZORVANE_SAMPLE_LIBRARY, "batch_96", path), "");
    const QImage picture(path);
    QFile::remove(path);
    EXPECT_NEAR(picture.width(), 1000, 40);
    // Twelve wells side by side have four edges each.
    int lines = 0;
    for (int y = 0; y < picture.height(); ++y)
        lines = std::max(lines, ChangesAlong(picture, y));
    EXPECT_GT(lines, 40);
}

TEST(Picture, TellsWhyThereIsNone) {
    EXPECT_EQ(WritePicture(ZORVANE_SAMPLE_LIBRARY, "Nope", "nope.png"),
              "Can't find Plate <Nope> in " ZORVANE_SAMPLE_LIBRARY);
    EXPECT_FALSE(WritePicture("no/such/library.dat", "Nope", "nope.png").isEmpty());
    EXPECT_FALSE(WritePicture(ZORVANE_SAMPLE_LIBRARY, "Batch_96", "no/such/folder.png").isEmpty());
    EXPECT_FALSE(WritePicture(ZORVANE_SAMPLE_LIBRARY, "Batch_96", "picture.unknown").isEmpty());
}

} // namespace
} // namespace zorvane
