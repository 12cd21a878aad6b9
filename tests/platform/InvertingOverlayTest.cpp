#include "platform/InvertingOverlay.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <vector>

namespace zorvane {
namespace {

constexpr Long kSolidPen = 0;
constexpr Long kLeast = std::numeric_limits<Long>::min();
constexpr Long kMost = std::numeric_limits<Long>::max();

struct Figure {
    bool ellipse;
    Long left, top, right, bottom;
};

std::ostream& operator<<(std::ostream& out, const Figure& figure) {
    return out << (figure.ellipse ? "ellipse " : "rectangle ") << figure.left << ' ' << figure.top
               << ' ' << figure.right << ' ' << figure.bottom;
}

/// An overlay with a context that is set up for outlines.
struct Drawing {
    explicit Drawing(Long width, Long height, Long penStyle = kDottedPen)
        : overlay(width, height), context(overlay.GetDC(1)) {
        overlay.SelectObject(context, overlay.CreatePen(penStyle, 1, 0));
        overlay.SetROP2(context, kNotXorPenMode);
    }

    Drawing& Draw(const Figure& f) {
        if (f.ellipse) {
            overlay.Ellipse(context, f.left, f.top, f.right, f.bottom);
        } else {
            overlay.Rectangle(context, f.left, f.top, f.right, f.bottom);
        }
        return *this;
    }

    std::vector<String> Picture() const {
        std::vector<String> rows;
        for (Long y = 0; y < overlay.Height(); ++y) {
            rows.emplace_back();
            for (Long x = 0; x < overlay.Width(); ++x)
                rows.back() += overlay.IsInverted(x, y) ? '#' : '.';
        }
        return rows;
    }

    InvertingOverlay overlay;
    DrawingContext::Handle context;
};

using Rows = std::vector<String>;

TEST(InvertingOverlay, DrawsOutlines) {
    const struct {
        Figure figure;
        Long pen;
        Rows picture;
    } rows[] = {
        {{false, 1, 1, 6, 4}, kSolidPen, {".......", ".#####.", ".#...#.", ".#####.", "......."}},
        {{false, 6, 4, 1, 1}, kSolidPen, {".......", ".#####.", ".#...#.", ".#####.", "......."}},
        {{false, 0, 0, 7, 5}, kDottedPen, {"###...#", "#.....#", "#.....#", ".......", "..###.."}},
        {{false, 2, 1, 3, 5}, kSolidPen, {".......", "..#....", "..#....", "..#....", "..#...."}},
        {{false, 1, 2, 6, 3}, kSolidPen, {".......", ".......", ".#####.", ".......", "......."}},
        {{false, 1, 2, 1, 4}, kSolidPen, Rows(5, ".......")},
        {{true, 0, 0, 7, 5}, kSolidPen, {".#####.", "#.....#", "#.....#", "#.....#", ".#####."}},
        {{true, 1, 0, 5, 4}, kSolidPen, {"..##...", ".#..#..", ".#..#..", "..##...", "......."}},
        {{true, 2, 0, 3, 5}, kSolidPen, Rows(5, "..#....")},
        {{true, 3, 1, 4, 1}, kSolidPen, Rows(5, ".......")}};
    for (const auto& row : rows)
        EXPECT_EQ(Drawing(7, 5, row.pen).Draw(row.figure).Picture(), row.picture) << row.figure;
}

TEST(InvertingOverlay, DrawingTwiceLeavesNoTraceWhereverItIs) {
    const Figure figures[] = {{false, 3, 4, 40, 30},     {false, 3, 4, 4, 30},
                              {false, -5, 8, 200, 9},    {false, 5, kLeast, kMost, 9},
                              {true, 3, 4, 40, 30},      {true, 3, 4, 4, 30},
                              {true, -5, 8, 200, 10},    {true, 0, 0, 50, 50},
                              {true, -10, 0, kMost, 32}, {true, kLeast, kLeast, kMost, kMost}};
    for (const Figure& figure : figures) {
        Drawing drawing(50, 50);
        // What is there already comes back too.
        drawing.Draw({false, 10, 10, 45, 45});
        const auto before = drawing.Picture();
        drawing.Draw(figure);
        drawing.Draw({figure.ellipse, figure.right, figure.bottom, figure.left, figure.top});
        EXPECT_EQ(drawing.Picture(), before) << figure;
        drawing.Draw({false, 10, 10, 45, 45});
        EXPECT_FALSE(drawing.overlay.Any()) << figure;
    }
}

/// The picture with its rows as columns.
Rows Turned(const Rows& picture) {
    Rows turned(picture[0].size());
    for (const String& row : picture) {
        for (std::size_t x = 0; x < row.size(); ++x)
            turned[x] += row[x];
    }
    return turned;
}

// An arc that only falls is one line when no row and no column of the box is without a pixel.
TEST(InvertingOverlay, EllipsesFillTheirBoxWithOneClosedLine) {
    for (Long width = 1; width <= 24; ++width) {
        for (Long height = 1; height <= 24; ++height) {
            const Figure ellipse{true, 0, 0, width, height};
            const Rows picture = Drawing(width, height, kSolidPen).Draw(ellipse).Picture();
            for (const Rows& lines : {picture, Turned(picture)}) {
                EXPECT_EQ(lines, Rows(lines.rbegin(), lines.rend())) << ellipse;
                std::size_t before = lines[0].find('#');
                for (std::size_t i = 0; i < (lines.size() + 1) / 2; ++i) {
                    const std::size_t first = lines[i].find('#');
                    ASSERT_NE(first, String::npos) << ellipse;
                    EXPECT_LE(first, before) << ellipse;
                    before = first;
                }
            }
        }
    }
}

TEST(InvertingOverlay, DrawsOnlyWithAContextInInvertingMode) {
    InvertingOverlay overlay(10, 10);
    EXPECT_EQ(overlay.GetDC(0), 0);
    overlay.Rectangle(0, 1, 1, 5, 5);
    const auto context = overlay.GetDC(7);
    const auto pen = overlay.CreatePen(kDottedPen, 1, 0);
    EXPECT_EQ(overlay.SelectObject(context, 999), 0);
    const auto stock = overlay.SelectObject(context, pen);
    EXPECT_NE(stock, 0);
    EXPECT_EQ(overlay.GetCurrentObject(context, kPenObject), pen);
    overlay.Rectangle(context, 1, 1, 5, 5);
    EXPECT_FALSE(overlay.Any());

    // Deleted, the pen stays in use where it is selected and cannot be selected anew.
    overlay.SetROP2(context, kNotXorPenMode);
    overlay.DeleteObject(pen);
    overlay.Rectangle(context, 1, 1, 9, 9);
    EXPECT_TRUE(overlay.IsInverted(1, 1));
    EXPECT_FALSE(overlay.IsInverted(4, 1));
    EXPECT_EQ(overlay.SelectObject(context, stock), pen);
    EXPECT_EQ(overlay.SelectObject(context, pen), 0);

    overlay.ReleaseDC(7, context);
    overlay.Rectangle(context, 0, 0, 3, 3);
    EXPECT_FALSE(overlay.IsInverted(0, 0));
    overlay.Resize(12, 9);
    EXPECT_FALSE(overlay.Any());
    EXPECT_FALSE(overlay.IsInverted(1, 1));
    EXPECT_FALSE(overlay.IsInverted(-1, 20));
}

} // namespace
} // namespace zorvane
