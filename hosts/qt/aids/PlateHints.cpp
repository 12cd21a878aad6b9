#include "hosts/qt/aids/PlateHints.h"

#include "drawing/Palette.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <array>

namespace zorvane {

namespace {

constexpr Single kLeastBadge = 165;
constexpr Single kBadgeEdge = 15;
constexpr Rgb kBadge{0xC6, 0x28, 0x28};

struct Hints {
    Q_DECLARE_TR_FUNCTIONS(zorvane::PlateWidget)
};

bool IsWell(const Plate& plate, Integer wellNo) {
    return wellNo >= 0 && wellNo < plate.TotalWells();
}

Rect InControl(const Plate& plate, const Rect& box) {
    const Rect& area = plate.Elements().fraPlate.box;
    return box.Moved(area.left, area.top);
}

std::array<const Label*, 2> LegendsOf(const Plate& plate, Integer wellNo) {
    return {&RowLegend(plate, static_cast<Integer>(wellNo / plate.Cols % plate.Rows)),
            &ColumnLegend(plate, static_cast<Integer>(wellNo % plate.Cols))};
}

/// Wide enough for the caption; the box itself has room for two characters.
Rect LitBox(const Plate& plate, const Label& legend) {
    constexpr Single kRoom = 75;
    const Rect box = InControl(plate, legend.box);
    return {box.left - kRoom, box.top, box.width + 2 * kRoom, box.height};
}

/// A bar and a dot in the middle of a box.
void DrawExclamationMark(Canvas& canvas, Rgb color, const Rect& box) {
    const Single width = box.height / 7;
    const Single left = box.left + (box.width - width) / 2;
    canvas.FillRectangle(color, {left, box.top + box.height / 6, width, box.height * 0.4F});
    canvas.FillRectangle(color, {left, box.top + box.height * 0.7F, width, width});
}

/// The mark stands on a badge at the rim's upper right, clear of a caption and of sub-wells in
/// front. Its colours are its own, so that it is there on any colour that a host gives wells. On a
/// well too small for the mark, the badge alone is shown.
void MarkError(const Surface& surface, std::size_t well, Single x, Single y, Canvas& canvas) {
    const Rect rim = surface.WellRim[well].box.Moved(x, y);
    const bool small = rim.height < kLeastBadge;
    const Single side = small ? rim.height / 2 : std::max(kLeastBadge, rim.height / 4);
    const Rect badge{rim.Right() - side, rim.top, side, side};
    if (small) return canvas.DrawShape({ShapeKind::Circle, kBadge, false}, badge);
    canvas.DrawShape({ShapeKind::Circle, kWhite, false}, badge);
    canvas.DrawShape({ShapeKind::Circle, kBadge, false},
                     {badge.left + kBadgeEdge, badge.top + kBadgeEdge, side - 2 * kBadgeEdge,
                      side - 2 * kBadgeEdge});
    DrawExclamationMark(canvas, kWhite, badge);
}

} // namespace

void HighlightLegends(const Plate& plate, Integer wellNo, Rgb back, Rgb text, Canvas& canvas) {
    if (!IsWell(plate, wellNo)) return;
    for (const Label* legend : LegendsOf(plate, wellNo)) {
        canvas.FillRectangle(back, LitBox(plate, *legend));
        canvas.DrawText({.color = text, .bold = true}, InControl(plate, legend->box),
                        legend->caption);
    }
}

Rect HighlightedLegends(const Plate& plate, Integer wellNo) {
    if (!IsWell(plate, wellNo)) return {};
    const auto [row, col] = LegendsOf(plate, wellNo);
    return Union(LitBox(plate, *row), LitBox(plate, *col));
}

void MarkErrors(const Plate& plate, Canvas& canvas) {
    const Surface& surface = plate.Elements();
    const Rect& area = surface.fraPlate.box;
    const Rect clip = canvas.Clip().Moved(-area.left, -area.top);
    for (const PaintRun& run : surface.paintOrder) {
        if (run.kind != PaintRun::Kind::Wells) continue;
        const auto [first, last] = surface.Touched(run, clip);
        for (Integer i = first; i < last; ++i) {
            const auto well = static_cast<Integer>(run.first + i);
            if (plate.IsDefined(well) && plate.ErrorCode(well) != 0)
                MarkError(surface, static_cast<std::size_t>(well), area.left, area.top, canvas);
        }
    }
}

QString DataOf(const Plate& plate, Integer wellNo) {
    if (!IsWell(plate, wellNo)) return {};
    QStringList lines;
    if (const Single volume = plate.GetVolume(wellNo); volume != 0 || plate.IsDefined(wellNo))
        lines += Hints::tr("Volume %1 µl").arg(QLocale().toString(double{volume}, 'g', 6));
    if (const String text = plate.Text(wellNo); !text.empty())
        lines += QString::fromStdString(text);
    if (const Integer error = plate.ErrorCode(wellNo); error != 0)
        lines += Hints::tr("Error %1").arg(error);
    return lines.join('\n');
}

} // namespace zorvane
