#include "control/layout/SubWellDrawing.h"

#include "model/WellStyle.h"
#include "runtime/Checked.h"
#include "runtime/Rounding.h"

namespace zorvane {

namespace {

// Small wells stay visible: below these sizes a bottom gains a pixel, a rim stands out by the
// margin.
constexpr Integer kSmallHalfSize = 45;
constexpr Integer kRimMargin = 30;

/// A length as a whole number of pixels.
Integer SnapToPixels(Double length, Single pixel) {
    return ToInteger(Double{pixel} * ToInteger(length / pixel));
}

void SizeWellAndRim(SubWellDrawing& drawing, const WellDetails& well, const DrawingScales& scales) {
    const Double scale = scales.scale;
    const Single pixel = scales.pixelWidth;

    Integer half = SnapToPixels(well.WellSizeX() * scale / 2, pixel);
    if (half < kSmallHalfSize) half = ToInteger(half + Double{pixel});

    // Both directions snap with the pixel width; the bottom is square, sized along X alone.
    Integer rimX = SnapToPixels((well.WellSizeX() / 2.0 + well.RimWidth()) * scale, pixel);
    Integer rimY = SnapToPixels((well.WellSizeY() / 2.0 + well.RimHeight()) * scale, pixel);

    if (rimX < Checked(half) + kRimMargin) {
        if (rimX < kSmallHalfSize) {
            rimX = Checked(half) + kRimMargin;
        } else {
            half = Checked(rimX) - kRimMargin;
        }
    }
    if (rimY < Checked(half) + kRimMargin) rimY = Checked(half) + kRimMargin;

    drawing.wellHalfSize = half;
    drawing.wellSize = Checked(2) * half;
    drawing.rimHalfWidth = rimX;
    drawing.rimWidth = Checked(2) * rimX;
    drawing.rimHalfHeight = rimY;
    drawing.rimHeight = Checked(2) * rimY;
    drawing.bottomBorder = half >= kRimMargin;
}

void SizeText(SubWellDrawing& drawing, const DrawingScales& scales) {
    const Double line = scales.labelHeight;
    const Double half = drawing.wellHalfSize;
    const Integer lines = ToInteger(0.8 * half / line);

    Integer linesHigh = 4;
    if (lines == 1) linesHigh = 1;
    if (lines == 2 || lines == 3) linesHigh = 2;
    if (lines >= 4 && lines <= 8) linesHigh = 3;

    drawing.textShown = lines > 0;
    drawing.textHeight = ToInteger(linesHigh * line);
    drawing.textWidth =
        ToInteger(lines == 1 ? 2 * (half - scales.pixelWidth) : 2 * half - line / 2);
}

/// Half of a pitch and two pixels, as a whole number halved towards zero.
Integer HalfPitch(Integer pitch, Single pixel) {
    return Checked(ToLong(Double(pitch) + pixel + pixel) / 2);
}

void ClampRimToPitch(SubWellDrawing& drawing, const DrawingScales& scales) {
    if (drawing.rimWidth > Double(drawing.columnPitch) + scales.pixelWidth) {
        drawing.rimHalfWidth = HalfPitch(drawing.columnPitch, scales.pixelWidth);
        drawing.rimWidth = Checked(2) * drawing.rimHalfWidth;
    }
    // The column pitch bounds the height too: plates with unequal pitches depend on being drawn so.
    if (drawing.rimHeight > Double(drawing.rowPitch) + scales.pixelHeight) {
        drawing.rimHalfHeight = HalfPitch(drawing.columnPitch, scales.pixelHeight);
        drawing.rimHeight = Checked(2) * drawing.rimHalfHeight;
    }
}

} // namespace

SubWellShapes ShapesOfStyle(Long style, SubWellShapes before) {
    const WellStyle* const known = FindWellStyle(style);
    if (!known) return before;
    const auto shape = [](bool round) { return round ? ShapeKind::Circle : ShapeKind::Rectangle; };
    return {shape(known->roundRim), shape(known->roundBottom)};
}

SubWellDrawing DrawSubWell(const WellDetails& well, const DrawingScales& scales,
                           SubWellShapes shapesBefore) {
    const Double scale = scales.scale;
    SubWellDrawing drawing;
    drawing.shapes = ShapesOfStyle(well.Style(), shapesBefore);
    SizeWellAndRim(drawing, well, scales);
    SizeText(drawing, scales);
    drawing.originX = ToInteger((Double{well.xOffset()} + well.RimCenterX()) * scale);
    drawing.originY = ToInteger((Double{well.yOffset()} + well.RimCenterY()) * scale);
    drawing.columnPitch = ToInteger(scale * scales.columnPitch);
    drawing.rowPitch = ToInteger(scale * scales.rowPitch);
    ClampRimToPitch(drawing, scales);
    return drawing;
}

} // namespace zorvane
