#include "Test.h"
#include "control/Plate.h"
#include "drawing/PlatePainter.h"
#include "drawing/SvgCanvas.h"
#include "platform/memory/MemorySite.h"

namespace zorvane {
namespace {

/// Compares a picture with the one kept under its name. One that differs is written next to it,
/// for a person to look at and to rename when it is right.
void ExpectPicture(const String& svg, const String& name) {
    const std::filesystem::path path = String(ZORVANE_GOLDEN_PICTURES) + "/" + name + ".svg";
    std::ifstream file(path, std::ios::binary);
    if (svg == String{std::istreambuf_iterator<char>(file), {}}) return;
    std::ofstream(path.string() + ".new", std::ios::binary) << svg;
    ADD_FAILURE() << "the picture differs from " << path << "; see the .new file next to it";
}

/// A control that shows a plate of the library next to the pictures.
struct ShownPlate {
    explicit ShownPlate(const String& name) {
        plate.FixedSize = false;
        EXPECT_TRUE(plate.SetPlate(name, ZORVANE_GOLDEN_PICTURES "/plates.dat")) << name;
    }
    /// The part of the control that the page shows; all of it for a page without a size.
    String Picture(SvgPage page) const {
        if (page.area.Empty()) page.area = {0, 0, site.Width(), site.Height()};
        SvgCanvas canvas(page);
        PaintControl(plate.Elements(), {}, canvas);
        return canvas.Finish();
    }

    TestProcess process;
    MemorySite site;
    Plate plate{site};
};

template <int unitsPerMillimetre>
void Scale(ShownPlate& shown) {
    shown.plate.DrawingScale(unitsPerMillimetre);
}

/// Wells with and without data; the operator has selected an area.
void ShowData(ShownPlate& shown) {
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
    const Rect& from = plate.Elements().WellRim[1].box;
    const Rect& to = plate.Elements().WellRim[5].box;
    plate.ButtonDown(kLeftButton, 0, from.left + from.width / 2, from.top + from.height / 2);
    plate.ButtonUp(kLeftButton, 0, to.left + to.width / 2, to.top + to.height / 2);
}

void FitInTheMiddle(ShownPlate& shown) {
    shown.site.SetSize(6600, 4800);
    shown.plate.FixedSize = true;
    shown.plate.HorizontalCentred = true;
    shown.plate.VerticalCentred = true;
    for (int layout = 0; layout < 2; ++layout) // the frame follows the scale one layout later
        shown.plate.DrawingScale(shown.plate.DrawingScale());
}

void ShowDetails(ShownPlate& shown) {
    FitInTheMiddle(shown);
    shown.plate.DataVisible(true);
}

void ShowUnknownStyle(ShownPlate& shown) {
    shown.plate.WellIndex(1);
    shown.plate.Style(7);
    shown.plate.DrawingScale(40);
}

void FailToShow(ShownPlate& shown) {
    EXPECT_EQ(NumberRaisedBy([&] { shown.plate.PlateClassText(OneDrop(1, 80)); }), 6);
}

TEST(PictureTest, Plates) {
    const struct {
        const char* name;
        const char* plate;
        SvgPage page;
        void (*show)(ShownPlate&);
    } rows[] = {
        {"styles", "Styles&more", {.description = "Four <kinds> of wells"}, Scale<100>},
        {"data", "Data", {.pixelWidth = 960}, ShowData},
        {"wide", "Wide", {.area = {0, 1900, 1200, 1660}}, Scale<40>},
        {"row", "Row", {}, FitInTheMiddle},
        {"column", "A_name_that_is_far_too_long_for_one_column", {}, FitInTheMiddle},
        {"details", "Row", {}, ShowDetails},
        {"unknown-style", "A_name_that_is_far_too_long_for_one_column", {}, ShowUnknownStyle},
        {"no-room-for-a-name", "Row", {}, Scale<4>},
        {"failed", "Row", {}, FailToShow},
    };
    for (const auto& row : rows) {
        ShownPlate shown(row.plate);
        row.show(shown);
        SvgPage page = row.page;
        page.title = row.plate;
        ExpectPicture(shown.Picture(page), row.name);
    }
}

TEST(PictureTest, HiddenElements) {
    const ShownPlate shown("Row");
    Surface surface = shown.plate.Elements();
    surface.WellRim[0].visible = false;
    surface.WellBottom[1].visible = false;
    surface.WellText[2].caption = "hidden";
    surface.WellText[2].visible = false;
    surface.lblWell[1].visible = false;
    surface.cmdData.visible = false;
    SvgCanvas canvas({.area = {0, 0, shown.site.Width(), shown.site.Height()}});
    PaintControl(surface, {}, canvas);
    ExpectPicture(canvas.Finish(), "hidden");
}

TEST(PictureTest, ShapesAndTexts) {
    SvgCanvas canvas({.area = {0, 0, 600, 600}, .title = "Shapes"});
    const Rect boxes[] = {{30, 30, 90, 60}, {29, 36, 30, 15}}; // the second is all outline
    for (const Rect& box : boxes) {
        for (const ShapeKind kind : {ShapeKind::Rectangle, ShapeKind::Square, ShapeKind::Oval,
                                     ShapeKind::Circle, ShapeKind::Rounded}) {
            for (const Boolean outlined : {true, false})
                canvas.DrawShape({.kind = kind, .fill = {1, 2, 3}, .outlined = outlined}, box);
        }
    }
    canvas.DrawText({}, {0, 0, 300, 195}, "a<b>&\"c\"\x01\xFF");
    canvas.DrawText({.bold = true, .align = TextAlign::Left}, {0, 0, 300, 195}, "µ");
    ExpectPicture(canvas.Finish(), "shapes");
}

TEST(PictureTest, PaintsOnlyTheWellsThatTheClipTouches) {
    ShownPlate shown("Wide");
    shown.plate.DrawingScale(50);
    shown.plate.PlateClassText(OneDrop(4, 5)); // rims of 390 units every 450 from (305, 305) on
    const struct {
        Rect clip;
        int wells;
    } rows[] = {
        {{1205, 1205, 390, 390}, 1}, {{1300, 1300, 1, 1}, 1},     {{1185, 1185, 430, 430}, 1},
        {{1205, 1205, 451, 390}, 2}, {{1205, 1205, 390, 451}, 2}, {{305, 305, 2250, 1}, 5},
        {{0, 0, 9000, 9000}, 20},    {{2520, 305, 500, 900}, 0},  {{0, 0, 270, 270}, 0}};
    for (const auto& row : rows) {
        const String svg = shown.Picture({.area = row.clip});
        int circles = 0;
        for (std::size_t at = 0; (at = svg.find("<circle", at)) != svg.npos; ++at)
            ++circles;
        EXPECT_EQ(circles, 2 * row.wells) << row.clip.left << ' ' << row.clip.width;
    }
}

TEST(PictureTest, StatesItsSize) {
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

} // namespace
} // namespace zorvane
