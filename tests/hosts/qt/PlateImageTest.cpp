#include "hosts/qt/PlateImage.h"
#include "Test.h"

namespace zorvane {
namespace {

TEST(PlateImageTest, ShowsThePlateInTheSizeAskedFor) {
    PictureRequest request{.definition = OneDrop(2, 3), .width = 300, .height = 200};
    const QImage plain = DrawPlateImage(request);
    EXPECT_EQ(plain.size(), QSize(300, 200));
    request.wells = {{.name = "B2", .color = 0x332211}};
    const QImage marked = DrawPlateImage(request, 2);
    EXPECT_EQ(marked.size(), QSize(600, 400));
    int colored = 0;
    for (int y = 0; y < marked.height(); ++y) {
        for (int x = 0; x < marked.width(); ++x)
            colored += marked.pixel(x, y) == qRgb(0x11, 0x22, 0x33) ? 1 : 0;
    }
    EXPECT_GT(colored, 100);
    EXPECT_EQ(NumberRaisedBy([] { DrawPlateImage({.plate = "Nope", .fileName = "none.dat"}); }), 5);
}

} // namespace
} // namespace zorvane
