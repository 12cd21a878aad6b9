#include "apps/viewer/Picture.h"

#include "Test.h"

#include <QImage>

namespace zorvane::viewer {
namespace {

TEST(Picture, ShowsThePlateOrSaysWhyItCannot) {
    const TempFolder folder;
    const auto draw = [&](const QString& library, const QString& plate, const char* file) {
        return WritePicture(library, plate, QString::fromStdString(folder.File(file)));
    };
    EXPECT_EQ(draw(ZORVANE_SAMPLE_LIBRARY, "batch_96", "plate.png"), "");
    const QImage picture(QString::fromStdString(folder.File("plate.png")));
    EXPECT_EQ(picture.size(), QSize(1001, 676));
    QImage blank = picture;
    blank.fill(picture.pixel(0, 0));
    EXPECT_NE(picture, blank);

    EXPECT_EQ(draw(ZORVANE_SAMPLE_LIBRARY, "Nope", "nope.png"),
              "Can't find Plate <Nope> in " ZORVANE_SAMPLE_LIBRARY);
    EXPECT_NE(draw("no/such/library.dat", "Nope", "nope.png"), "");
    EXPECT_NE(draw(ZORVANE_SAMPLE_LIBRARY, "Batch_96", "no/folder.png"), "");
    EXPECT_NE(draw(ZORVANE_SAMPLE_LIBRARY, "Batch_96", "picture.unknown"), "");
}

} // namespace
} // namespace zorvane::viewer
