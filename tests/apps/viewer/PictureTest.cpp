#include "apps/viewer/Picture.h"

#include "TempFile.h"

#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

namespace zorvane {
namespace {

TEST(Picture, ShowsThePlate) {
    const TempFile file;
    const QString path = QString::fromStdString(file.Path()) + ".png";
    EXPECT_EQ(WritePicture(ZORVANE_SAMPLE_LIBRARY, "batch_96", path), "");
    const QImage picture(path);
    QFile::remove(path);
    EXPECT_EQ(picture.width(), 1000);
    // As on the plate, the wells reach from one side of the picture to the other.
    int lines = 0;
    for (int x = 1; x < picture.width(); ++x)
        lines +=
            picture.pixel(x, picture.height() / 2) != picture.pixel(x - 1, picture.height() / 2);
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
