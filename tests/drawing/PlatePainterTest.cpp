#include "drawing/PlatePainter.h"
#include "AllocationCounter.h"
#include "RecordingCanvas.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zorvane {
namespace {

using Lines = std::vector<String>;

/// Round wells 300 apart in a plate area at 1000, 2000; the first one's rim is at the area's 0,
/// 300.
Surface SurfaceWithWells(Integer rows, Integer columns) {
    Surface surface;
    surface.fraPlate.box = {1000, 2000, 3000, 3000};
    surface.cmdData.visible = false;
    surface.ResizeWells(static_cast<std::size_t>(rows * columns));
    for (Integer row = 0; row < rows; ++row) {
        const auto first = static_cast<Integer>(row * columns);
        for (Integer column = 0; column < columns; ++column) {
            const auto well = static_cast<std::size_t>(first + column);
            const Rect rim = Rect{0, 300, 240, 240}.Moved(static_cast<Single>(column) * 300,
                                                          static_cast<Single>(row) * 300);
            surface.WellRim[well] = {.box = rim, .kind = ShapeKind::Circle, .visible = true};
            surface.WellBottom[well] = {
                .box = rim.Grown(-30), .kind = ShapeKind::Square, .visible = true};
            surface.WellText[well] = {.box = rim.Grown(-20), .visible = true, .caption = {}};
        }
        surface.paintOrder.push_back(
            {PaintRun::Kind::Wells, first, columns, 300,
             Union(surface.WellBox(static_cast<std::size_t>(first)),
                   surface.WellBox(static_cast<std::size_t>(first + columns - 1)))});
    }
    return surface;
}

void AddLegend(Surface& surface, const String& caption) {
    const std::size_t legend = surface.lblWell.size();
    surface.CreateLegends(legend + 1);
    Label& label = surface.lblWell[legend];
    label.caption = caption;
    label.visible = true;
    surface.paintOrder.push_back(
        {PaintRun::Kind::Legends, static_cast<Integer>(legend), 1, 0, label.box});
}

Lines Painted(const Surface& surface, const Rect& clip = {0, 0, 10000, 10000}) {
    RecordingCanvas canvas(clip);
    PaintControl(surface, {}, canvas);
    return canvas.painted;
}

TEST(PlatePainterTest, PaintsFromBackToFront) {
    Surface surface = SurfaceWithWells(1, 2);
    surface.fraPlate.caption = "Plate";
    surface.WellText[0].caption = "7";
    surface.WellBottom[1].border = false;
    AddLegend(surface, "A");
    surface.SelectBox = {{0, 300, 540, 240}, true};
    surface.fraData.visible = true;
    surface.cmdData.visible = true;

    EXPECT_EQ(Painted(surface), (Lines{
                                    "fill F0F0F0 at 0 0 size 10000 10000",
                                    "fill F0F0F0 at 1000 2000 size 3000 3000",
                                    "line FFFFFF at 1015 2112.5 size 2985 2887.5",
                                    "line A0A0A0 at 1000 2097.5 size 2985 2887.5",
                                    "fill F0F0F0 at 1075 2000 size 590 195",
                                    "\"Plate\" left 000000 at 1120 2000 size 2760 195",
                                    "circle E0E0E0 at 1000 2300 size 240 240",
                                    "square E0E0E0 at 1030 2330 size 180 180",
                                    "\"7\" 000000 at 1030 2322.5 size 180 195",
                                    "circle E0E0E0 at 1300 2300 size 240 240",
                                    "borderless square E0E0E0 at 1330 2330 size 180 180",
                                    "\"A\" 000000 at 910 2210 size 465 195",
                                    "inverted FFFFFF at 1000 2300 size 540 240",
                                    "fill F0F0F0 at 45 45 size 2775 4740",
                                    "line FFFFFF at 60 157.5 size 2760 4627.5",
                                    "line A0A0A0 at 45 142.5 size 2760 4627.5",
                                    "fill 696969 at 120 240 size 240 240",
                                    "fill FFFFFF at 120 240 size 225 225",
                                    "fill A0A0A0 at 135 255 size 210 210",
                                    "fill F0F0F0 at 135 255 size 195 195",
                                    "bold \"?\" 000000 at 120 240 size 240 240",
                                }));
}

TEST(PlatePainterTest, LeavesOutWhatIsHidden) {
    const auto hidden = [](auto hide) {
        Surface surface = SurfaceWithWells(1, 1);
        surface.fraPlate.back = 0x010203;
        surface.WellRim[0].fill = 0x111111;
        surface.WellBottom[0].fill = 0xEEEEEE;
        surface.WellText[0].caption = "text";
        AddLegend(surface, "A");
        surface.SelectBox.visible = true;
        surface.cmdData.visible = true;
        Lines all = Painted(surface);
        hide(surface);
        Lines missing;
        const Lines rest = Painted(surface);
        std::ranges::copy_if(all, std::back_inserter(missing), [&rest](const String& line) {
            return std::ranges::find(rest, line) == rest.end();
        });
        return missing;
    };
    EXPECT_EQ(hidden([](Surface& s) { s.WellRim[0].visible = false; }),
              Lines{"circle 111111 at 1000 2300 size 240 240"});
    EXPECT_EQ(hidden([](Surface& s) { s.WellBottom[0].visible = false; }),
              Lines{"square EEEEEE at 1030 2330 size 180 180"});
    EXPECT_EQ(hidden([](Surface& s) { s.WellText[0].visible = false; }).size(), 1U);
    EXPECT_EQ(hidden([](Surface& s) { s.lblWell[1].visible = false; }).size(), 1U);
    EXPECT_EQ(hidden([](Surface& s) { s.SelectBox.visible = false; }).size(), 1U);
    EXPECT_EQ(hidden([](Surface& s) { s.cmdData.visible = false; }).size(), 5U);
    // The area hides all that is in it: its own three lines, the well, the legend, the box.
    EXPECT_EQ(hidden([](Surface& s) { s.fraPlate.visible = false; }).size(), 8U);
}

TEST(PlatePainterTest, VisitsOnlyTheWellsThatTheClipTouches) {
    const Surface surface = SurfaceWithWells(4, 5);
    const auto rims = [&surface](const Rect& clip) {
        Lines lines = Painted(surface, clip);
        std::erase_if(lines, [](const String& line) { return line.front() != 'c'; });
        return lines;
    };
    // Row 2, column 3, its box and a point in it.
    const Lines one{"circle E0E0E0 at 1900 2900 size 240 240"};
    EXPECT_EQ(rims({1900, 2900, 240, 240}), one);
    EXPECT_EQ(rims({2000, 3000, 1, 1}), one);
    EXPECT_EQ(rims({1880, 2880, 280, 280}), one);
    EXPECT_EQ(rims({1900, 2900, 301, 240}).size(), 2U);
    EXPECT_EQ(rims({1900, 2900, 240, 301}).size(), 2U);
    EXPECT_EQ(rims({1000, 2300, 1500, 1}).size(), 5U);
    EXPECT_EQ(rims({0, 0, 9000, 9000}).size(), 20U);
    EXPECT_EQ(rims({2460, 2300, 500, 900}).size(), 0U);
    EXPECT_EQ(rims({0, 0, 900, 900}).size(), 0U);
}

TEST(PlatePainterTest, KeepsCaptionsInTheirFrames) {
    Surface surface;
    surface.cmdData.visible = false;
    surface.fraPlate.caption = "A name that is far too long";
    surface.fraPlate.box = {0, 0, 1000, 1000};
    EXPECT_EQ(Painted(surface).back(), "\"A na…\" left 000000 at 120 0 size 760 195");
    surface.fraPlate.box.width = 240;
    EXPECT_EQ(Painted(surface).back().substr(0, 4), "line") << "no room for a caption at all";
}

} // namespace
} // namespace zorvane
