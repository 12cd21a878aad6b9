#include "control/layout/PlateLayout.h"

#include "platform/Process.h"
#include "runtime/Checked.h"
#include "runtime/Rounding.h"

#include <algorithm>
#include <utility>

namespace zorvane {

void PlateLayout::Begin() {
    CopyPlateValues();
    PlaceFrames();
}

void PlateLayout::PlaceWells(Boolean fullReset) {
    fullReset_ = fullReset;
    const Long subWells = definition_->CompoundWell()->Count();
    fields_.ZClear = fields_.PHeight + 1;
    if (wells_.SetTotal(Checked(fields_.Cols) * fields_.Rows * subWells))
        notifier_.SelectionChanged();
    if (fields_.FixedSize) FitScaleToControl();
    surface_.fraPlate.visible = false;
    surface_.paintOrder.clear();
    if (subWells > 0) legends_.Anchor(*definition_, scale_);
    RetireElements();
    PlaceSubWells();
    CentreFrames();
}

void PlateLayout::CopyPlateValues() {
    const Screen& screen = CurrentProcess().TheScreen();
    const cmPlate& plate = *definition_;
    grid_.pixelWidth = screen.TwipsPerPixelX();
    grid_.pixelHeight = screen.TwipsPerPixelY();
    fields_.Rows = plate.Rows();
    fields_.Cols = plate.Cols();
    fields_.XPitch = plate.XPitch();
    fields_.YPitch = plate.YPitch();
    fields_.xOverall = plate.xOverall();
    fields_.yOverall = plate.yOverall();
    fields_.PHeight = plate.Height();
}

/// With FixedSize the scale may change afterwards; the frame keeps this size until the next layout.
void PlateLayout::PlaceFrames() {
    const Double scale = scale_;
    surface_.fraPlate.box = {0, 0, OnSurface(scale * fields_.xOverall),
                             OnSurface(scale * fields_.yOverall)};
    surface_.fraData.box.left = 0;
    surface_.fraData.box.top = 0;
    surface_.fraPlate.caption = definition_->PlateName();
    surface_.fraData.caption = definition_->PlateName();
    surface_.fraData.caption += " - Details";
    fields_.Status = definition_->Status();
}

/// The row legends need the room of one legend at the left, the button its height.
void PlateLayout::FitScaleToControl() {
    if (fields_.xOverall == 0 || fields_.yOverall == 0) Raise(ErrorNumber::DivisionByZero);
    const Rect& stick = surface_.lblWell[0].box;
    const Double across = (Double{notifier_.Width()} - stick.left - stick.width) / fields_.xOverall;
    const Double down =
        (Double{notifier_.Height()} - surface_.cmdData.box.height) / fields_.yOverall;
    scale_ = ToSingle(std::min(across, down));
}

void PlateLayout::RetireElements() {
    surface_.ResizeWells(static_cast<std::size_t>(std::max<Integer>(wells_.Total(), 0)));
    if (wells_.Release()) notifier_.SelectionChanged();
    // The elements of well 0 exist even without wells.
    surface_.WellRim[0].visible = surface_.WellBottom[0].visible = false;
    surface_.WellText[0].visible = false;
    for (Label& legend : surface_.lblWell)
        legend.visible = false;
}

void PlateLayout::PlaceSubWells() {
    const CompoundWell& subWells = *definition_->CompoundWell();
    const Integer count = static_cast<Integer>(subWells.Count());
    SubWellShapes shapes;
    for (Integer position = count; position >= 1; --position) {
        const SubWellDrawing drawing = DrawSubWell(*subWells.Item(position), Scales(), shapes);
        shapes = drawing.shapes;
        grid_.columnPitch = drawing.columnPitch;
        grid_.rowPitch = drawing.rowPitch;
        if (position == count) {
            grid_.left = drawing.originX;
            grid_.top = drawing.originY;
        }
        // Only sub-well 1, the last one placed, decides what legends are shown.
        if (position == 1) legends_.Create();
        PlaceGrid(drawing, position);
    }
}

DrawingScales PlateLayout::Scales() const {
    return {scale_,         grid_.pixelWidth, grid_.pixelHeight, surface_.lblWell[0].box.height,
            fields_.XPitch, fields_.YPitch};
}

void PlateLayout::PlaceGrid(const SubWellDrawing& drawing, Integer position) {
    const auto rows = std::max<Integer>(fields_.Rows, 0);
    const auto cols = std::max<Integer>(fields_.Cols, 0);
    auto well = static_cast<std::size_t>(position - 1) * static_cast<std::size_t>(rows) *
                static_cast<std::size_t>(cols);
    Single y = drawing.originY;
    for (Integer row = 0; row < rows; ++row) {
        PlaceRow(drawing, y, well);
        if (position == 1 && row == rows - 1)
            legends_.PlaceColumns(*definition_, drawing.columnPitch);
        if (position == 1) legends_.PlaceRow(*definition_, row, y);
        well += static_cast<std::size_t>(cols);
        y += drawing.rowPitch;
    }
}

void PlateLayout::PlaceRow(const SubWellDrawing& drawing, Single y, std::size_t first) {
    if (fields_.Cols < 1) return;
    OnSurface(y);
    Single x = drawing.originX;
    for (Integer column = 0; column < fields_.Cols; ++column) {
        OnSurface(x);
        PlaceWell(drawing, first + static_cast<std::size_t>(column), x, y);
        x += drawing.columnPitch;
    }
    const std::size_t last = first + static_cast<std::size_t>(fields_.Cols) - 1;
    surface_.paintOrder.push_back({PaintRun::Kind::Wells, static_cast<Integer>(first), fields_.Cols,
                                   drawing.columnPitch,
                                   Union(surface_.WellBox(first), surface_.WellBox(last))});
}

void PlateLayout::PlaceWell(const SubWellDrawing& drawing, std::size_t well, Single x, Single y) {
    Shape& rim = surface_.WellRim[well];
    rim.kind = drawing.shapes.rim;
    rim.box = {x - drawing.rimHalfWidth, y - drawing.rimHalfHeight,
               static_cast<Single>(drawing.rimWidth), static_cast<Single>(drawing.rimHeight)};

    Shape& bottom = surface_.WellBottom[well];
    const Single size = static_cast<Single>(drawing.wellSize);
    bottom.kind = drawing.shapes.bottom;
    bottom.border = drawing.bottomBorder;
    bottom.box = {x - drawing.wellHalfSize, y - drawing.wellHalfSize,
                  drawing.bottomBorder ? size : size + grid_.pixelWidth,
                  drawing.bottomBorder ? size : size + grid_.pixelHeight};

    Label& text = surface_.WellText[well];
    text.visible = drawing.textShown;
    if (drawing.textShown) {
        text.box = {x - static_cast<Single>(drawing.textWidth) / 2,
                    y - static_cast<Single>(drawing.textHeight) / 2,
                    static_cast<Single>(drawing.textWidth),
                    static_cast<Single>(drawing.textHeight)};
    }
    rim.visible = bottom.visible = true;
    if (!fullReset_) return;
    rim.fill = elements_.defaultRim;
    bottom.fill = elements_.defaultBottom;
    text.caption.clear();
    if (std::exchange(wells_[static_cast<Integer>(well)].Selected, false))
        notifier_.SelectionChanged();
}

void PlateLayout::CentreFrames() {
    const Double width = notifier_.Width();
    const Double height = notifier_.Height();
    const Boolean across = fields_.FixedSize && fields_.HorizontalCentred;
    const Boolean down = fields_.FixedSize && fields_.VerticalCentred;
    for (Rect* box : {&surface_.fraPlate.box, &surface_.fraData.box}) {
        box->left = across ? static_cast<Single>((width - box->width) / 2) : 0;
        box->top =
            down ? static_cast<Single>((height - box->height - surface_.cmdData.box.height) / 2)
                 : 0;
    }
}

} // namespace zorvane
