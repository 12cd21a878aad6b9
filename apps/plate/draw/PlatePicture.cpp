#include "apps/plate/draw/PlatePicture.h"

#include "drawing/PlatePainter.h"
#include "drawing/SvgCanvas.h"

namespace zorvane {

namespace {

String DescriptionOf(const Plate& plate) {
    const Long positions = Long{plate.Rows} * plate.Cols;
    return std::to_string(positions) + " positions in " + std::to_string(plate.Rows) +
           " rows and " + std::to_string(plate.Cols) +
           " columns, sub-wells in each: " + std::to_string(plate.SubWellCount);
}

} // namespace

String PlatePicture(const Plate& plate, Single width, Single height, const ShownWellData* data) {
    Surface surface = plate.Elements();
    surface.cmdData.visible = false;
    SvgPage page;
    page.area = {0, 0, width, height};
    page.title = plate.PlateName();
    page.description = DescriptionOf(plate);
    SvgCanvas canvas(page);
    PaintControl(surface, SystemPalette(), canvas);
    if (data) {
        data->PaintSigns(surface, canvas);
        const Single keyHeight = ShownWellData::KeyHeight(plate);
        data->PaintKey({0, height - keyHeight, width, keyHeight}, canvas);
    }
    return canvas.Finish();
}

} // namespace zorvane
