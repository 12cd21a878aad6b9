#include "drawing/SvgCanvas.h"
#include "Test.h"
#include "control/Plate.h"
#include "drawing/PlatePainter.h"
#include "platform/memory/MemorySite.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <sstream>
#include <utility>
#include <vector>

namespace zorvane {
namespace {

String PathOf(const String& file) { return String(ZORVANE_GOLDEN_PICTURES) + "/" + file; }

String BytesOf(const String& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Compares a picture with the one kept under its name. One that differs is written beside it, for
/// a person to look at and to rename when it is right.
void ExpectPicture(const String& svg, const String& name) {
    const String path = PathOf(name + ".svg");
    const String newPath = path + ".new";
    if (svg == BytesOf(path)) {
        std::filesystem::remove(newPath);
        return;
    }
    std::ofstream(newPath, std::ios::binary) << svg;
    ADD_FAILURE() << "the picture differs from " << path << "; see " << newPath;
}

/// A control that shows the first plate of a library beside the pictures.
struct ShownPlate {
    ShownPlate(const String& name, const String& library) {
        plate.FixedSize = false;
        EXPECT_TRUE(plate.SetPlate(name, PathOf(library)));
    }

    String Picture(SvgPage page) const {
        page.area = {0, 0, site.Width(), site.Height()};
        SvgCanvas canvas(page);
        PaintControl(plate.Elements(), {}, canvas);
        return canvas.Finish();
    }

    TestProcess process;
    MemorySite site;
    Plate plate{site};
};

TEST(SvgPictureTest, EveryStyle) {
    ShownPlate shown("Styles&more", "styles.dat");
    shown.plate.DrawingScale(100);
    ExpectPicture(shown.Picture({.title = "Styles&more", .description = "Four <kinds> of wells"}),
                  "styles");
}

TEST(SvgPictureTest, DataAndSelection) {
    ShownPlate shown("Data", "data.dat");
    Plate& plate = shown.plate;
    plate.MultipleSelect = true;
    plate.SelectBoxEnabled(true);
    plate.DefinedWellColor = 0x2C5A1E;
    plate.ErrorWellColor = 0x2020C0;
    plate.DrawingScale(130);
    plate.WellAnnotation(0, "A1");
    plate.IsDefined(0, true); // the text stays readable on dark green
    plate.WellAnnotation(3, "E7");
    plate.ErrorCode(3, 7);
    plate.IsDefined(3, true);
    plate.WellAnnotation(4, "far too long");
    plate.WellAnnotation(6, "salt <5 %> and water");
    plate.Selected(true);
    // From the drop at row 0, column 1 to the one at row 1, column 2.
    const auto centre = [&plate](std::size_t well) {
        const Rect& rim = plate.Elements().WellRim[well].box;
        return std::pair(rim.left + rim.width / 2, rim.top + rim.height / 2);
    };
    const auto [fromX, fromY] = centre(1);
    const auto [toX, toY] = centre(5);
    plate.ButtonDown(kLeftButton, 0, fromX, fromY);
    plate.PointerMove(kLeftButton, 0, toX, toY);
    plate.ButtonUp(kLeftButton, 0, toX, toY);
    EXPECT_TRUE(plate.Elements().SelectBox.visible);
    ExpectPicture(shown.Picture({.title = "Data", .pixelWidth = 960}), "data");
}

const SvgPage kSmallPage{.area = {0, 0, 300, 150}, .title = "Page"};

/// The lines that paint something, without indentation.
std::vector<String> Elements(const std::function<void(Canvas&)>& paint) {
    SvgCanvas canvas(kSmallPage);
    paint(canvas);
    std::istringstream svg(canvas.Finish());
    std::vector<String> lines;
    for (String line; std::getline(svg, line);)
        lines.push_back(line.substr(std::min(line.find_first_not_of(' '), line.size())));
    return {lines.begin() + 3, lines.end() - 1}; // between the title and the end of the picture
}

TEST(SvgCanvasTest, DrawsEveryShapeInsideOfItsBox) {
    const auto draws = [](ShapeKind kind, const Rect& box, Boolean outlined,
                          const String& expected) {
        const auto elements = Elements([&](Canvas& canvas) {
            canvas.DrawShape({.kind = kind, .fill = {1, 2, 3}, .outlined = outlined}, box);
        });
        EXPECT_EQ(elements, std::vector{expected});
    };
    const String painted = R"( fill="#010203" stroke="#000000")";
    const Rect wide{30, 30, 90, 60};
    draws(ShapeKind::Rectangle, wide, true,
          "<rect" + painted + R"( x="37.5" y="37.5" width="75" height="45"/>)");
    draws(ShapeKind::Square, wide, true,
          "<rect" + painted + R"( x="52.5" y="37.5" width="45" height="45"/>)");
    draws(ShapeKind::Circle, wide, true, "<circle" + painted + R"( cx="75" cy="60" r="22.5"/>)");
    draws(ShapeKind::Oval, wide, true,
          "<ellipse" + painted + R"( cx="75" cy="60" rx="37.5" ry="22.5"/>)");
    draws(ShapeKind::Rounded, wide, true,
          "<rect" + painted + R"( x="37.5" y="37.5" width="75" height="45" rx="11.25"/>)");
    draws(ShapeKind::Circle, wide, false, R"(<circle fill="#010203" cx="75" cy="60" r="30"/>)");
    // On whole pixels, and all outline where there is no room for more.
    draws(ShapeKind::Rectangle, {29, 36, 30, 15}, true,
          R"(<rect x="30" y="30" width="30" height="15"/>)");
}

TEST(SvgCanvasTest, StatesItsSize) {
    const auto states = [](const Rect& area, Single width, Single height, const String& expected) {
        const String svg =
            SvgCanvas({.area = area, .pixelWidth = width, .pixelHeight = height}).Finish();
        EXPECT_NE(svg.find(' ' + expected + '\n'), String::npos) << expected << " in " << svg;
    };
    const Rect page{0, 0, 6388, 4394};
    states(page, 0, 0, R"(width="426" height="293" viewBox="0 0 6390 4395")");
    states(page, 852, 0, R"(width="852" height="587" viewBox="0 0 6390 4395")");
    states(page, 0, 100, R"(width="146" height="100" viewBox="0 0 6390 4395")");
    states(page, 100, 100, R"(width="100" height="100" viewBox="0 0 6390 4395")");
    states({0, 0, 0, 120}, 0, 0, R"(width="0" height="8" viewBox="0 0 0 120")");
    states({0, 0, 0, 120}, 100, 100, R"(width="100" height="100" viewBox="0 0 0 120")");
}

TEST(SvgCanvasTest, EscapesAnyText) {
    const auto elements = Elements([](Canvas& canvas) {
        canvas.DrawText({}, {0, 0, 300, 195}, "a<b>&\"c\"\x01\xFF");
        canvas.DrawText({.bold = true, .align = TextAlign::Left}, {0, 0, 300, 195}, "µ");
    });
    const std::vector<String> expected{
        "<text x=\"150\" y=\"156.9\">a&lt;b&gt;&amp;&quot;c&quot;\uFFFD\uFFFD</text>",
        R"(<text x="0" y="156.9" text-anchor="start" font-weight="bold">µ</text>)",
    };
    EXPECT_EQ(elements, expected);
}

} // namespace
} // namespace zorvane
