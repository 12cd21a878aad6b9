#include "control/Layout.h"

#include "control/DataPanel.h"
#include "control/LegendLayout.h"
#include "control/PanelPages.h"
#include "control/SubWellDrawing.h"
#include "control/WellElements.h"
#include "platform/Process.h"
#include "runtime/Checked.h"
#include "runtime/Rounding.h"

#include <algorithm>

namespace zorvane {

namespace {

/// One layout in progress. Each member function is one step; Run has their order.
class Layout {
  public:
    Layout(ControlParts parts, Boolean fullReset)
        : state_(parts.state), surface_(parts.surface), parts_(parts),
          plate_(*parts.state.PlateDef), subWells_(*parts.state.PlateDef->CompoundWell()),
          fullReset_(fullReset), legends_(parts.state, parts.surface) {}

    void Run() {
        CopyPlateValues();
        PlaceFrames();
        ListPages(parts_);
        SizeWellRecords();
        if (state_.FixedSize) FitScaleToControl();
        surface_.fraPlate.visible = false;
        surface_.paintOrder.clear();
        if (subWells_.Count() > 0) legends_.Anchor();
        RetireElements();
        LayOutSubWells();
        ShowShapes();
        CentreFrames();
        surface_.panel.cmdApply.visible = state_.EditEnable;
        state_.LayoutBusy = false;
        FillPage(parts_, kCommentPage);
        surface_.fraPlate.visible = true;
        ShowDataPanel(parts_, false);
    }

  private:
    void CopyPlateValues() {
        const Screen& screen = CurrentProcess().TheScreen();
        state_.PixelWidth = screen.TwipsPerPixelX();
        state_.PixelHeight = screen.TwipsPerPixelY();
        state_.Rows = plate_.Rows();
        state_.Cols = plate_.Cols();
        state_.XPitch = plate_.XPitch();
        state_.YPitch = plate_.YPitch();
        state_.xOverall = plate_.xOverall();
        state_.yOverall = plate_.yOverall();
        state_.PHeight = plate_.Height();
    }

    /// With FixedSize the scale may change afterwards; the frame keeps this size until the next
    /// layout.
    void PlaceFrames() {
        const Double scale = state_.DrawingScale;
        surface_.fraPlate.box = {0, 0, OnSurface(scale * state_.xOverall),
                                 OnSurface(scale * state_.yOverall)};
        surface_.fraData.box.left = 0;
        surface_.fraData.box.top = 0;
        surface_.fraPlate.caption = plate_.PlateName();
        surface_.fraData.caption = plate_.PlateName();
        surface_.fraData.caption += " - Details";
        state_.Status = plate_.Status();
    }

    void SizeWellRecords() {
        state_.ZClear = state_.PHeight + 1;
        state_.TotalWells = Checked(state_.Cols) * state_.Rows * subWells_.Count();
        if (state_.WellsAllocated < state_.TotalWells) {
            state_.Wells.Create(state_.TotalWells);
            state_.WellsAllocated = state_.TotalWells;
        }
    }

    /// The row legends need the room of one legend at the left, the button its height.
    void FitScaleToControl() {
        if (state_.xOverall == 0 || state_.yOverall == 0) Raise(ErrorNumber::DivisionByZero);
        const Rect& stick = surface_.lblWell[0].box;
        const Double across =
            (Double{parts_.site.Width()} - stick.left - stick.width) / state_.xOverall;
        const Double down =
            (Double{parts_.site.Height()} - surface_.cmdData.box.height) / state_.yOverall;
        state_.DrawingScale = ToSingle(across > down ? down : across);
    }

    void RetireElements() {
        const auto wells = static_cast<std::size_t>(std::max<Integer>(state_.TotalWells, 0));
        surface_.ResizeWells(wells);
        state_.Wells.ReleaseFrom(std::max<std::size_t>(wells, 1));
        // Also when the plate shrank, so that a later, larger one creates the records afresh.
        state_.WellsAllocated = state_.TotalWells;
        for (Shape& rim : surface_.WellRim)
            rim.visible = false;
        for (Shape& bottom : surface_.WellBottom)
            bottom.visible = false;
        for (Label& text : surface_.WellText)
            text.visible = false;
        for (Label& legend : surface_.lblWell)
            legend.visible = false;
    }

    void LayOutSubWells() {
        const Integer count = static_cast<Integer>(subWells_.Count());
        SubWellShapes shapes;
        for (Integer position = count; position >= 1; --position) {
            const SubWellDrawing drawing = DrawSubWell(*subWells_.Item(position), Scales(), shapes);
            shapes = drawing.shapes;
            state_.ColumnPitch = drawing.columnPitch;
            state_.RowPitch = drawing.rowPitch;
            if (position == count) {
                state_.GridLeft = drawing.originX;
                state_.GridTop = drawing.originY;
            }
            // Only sub-well 1, the last one laid out, decides what legends are shown.
            if (position == 1) legends_.Begin();
            LayOutWells(drawing, position);
        }
    }

    DrawingScales Scales() const {
        return {state_.DrawingScale, state_.PixelWidth,
                state_.PixelHeight,  surface_.lblWell[0].box.height,
                state_.XPitch,       state_.YPitch};
    }

    void LayOutWells(const SubWellDrawing& drawing, Integer position) {
        const auto rows = std::max<Integer>(state_.Rows, 0);
        const auto cols = std::max<Integer>(state_.Cols, 0);
        auto well = static_cast<std::size_t>(position - 1) * static_cast<std::size_t>(rows) *
                    static_cast<std::size_t>(cols);
        Single y = drawing.originY;
        for (Integer row = 0; row < rows; ++row) {
            LayOutRow(drawing, y, well);
            if (position == 1 && row == rows - 1) legends_.PlaceColumns();
            if (position == 1) legends_.PlaceRow(row, y);
            well += static_cast<std::size_t>(cols);
            y += drawing.rowPitch;
        }
    }

    void LayOutRow(const SubWellDrawing& drawing, Single y, std::size_t first) {
        if (state_.Cols < 1) return;
        OnSurface(y);
        Single x = drawing.originX;
        for (Integer column = 0; column < state_.Cols; ++column) {
            OnSurface(x);
            PlaceWell(drawing, first + static_cast<std::size_t>(column), x, y);
            x += drawing.columnPitch;
        }
        const std::size_t last = first + static_cast<std::size_t>(state_.Cols) - 1;
        surface_.paintOrder.push_back({PaintRun::Kind::Wells, static_cast<Integer>(first),
                                       state_.Cols, drawing.columnPitch,
                                       Union(surface_.WellBox(first), surface_.WellBox(last))});
    }

    void PlaceWell(const SubWellDrawing& drawing, std::size_t well, Single x, Single y) {
        Shape& rim = surface_.WellRim[well];
        rim.kind = drawing.shapes.rim;
        rim.box = {x - drawing.rimHalfWidth, y - drawing.rimHalfHeight,
                   static_cast<Single>(drawing.rimWidth), static_cast<Single>(drawing.rimHeight)};

        Shape& bottom = surface_.WellBottom[well];
        const Single size = static_cast<Single>(drawing.wellSize);
        bottom.kind = drawing.shapes.bottom;
        bottom.border = drawing.bottomBorder;
        bottom.box = {x - drawing.wellHalfSize, y - drawing.wellHalfSize,
                      drawing.bottomBorder ? size : size + state_.PixelWidth,
                      drawing.bottomBorder ? size : size + state_.PixelHeight};

        Label& text = surface_.WellText[well];
        text.visible = drawing.textShown;
        if (drawing.textShown) {
            text.box = {x - static_cast<Single>(drawing.textWidth) / 2,
                        y - static_cast<Single>(drawing.textHeight) / 2,
                        static_cast<Single>(drawing.textWidth),
                        static_cast<Single>(drawing.textHeight)};
        }

        if (fullReset_) {
            rim.fill = state_.DefaultRimColor;
            bottom.fill = state_.DefaultWellColor;
            text.caption.clear();
            state_.Wells[static_cast<Integer>(well)].Selected = false;
        }
    }

    void ShowShapes() {
        if (state_.TotalWells < 1) return;
        for (Shape& rim : surface_.WellRim)
            rim.visible = true;
        for (Shape& bottom : surface_.WellBottom)
            bottom.visible = true;
    }

    void CentreFrames() {
        const Double width = parts_.site.Width();
        const Double height = parts_.site.Height();
        const Boolean across = state_.FixedSize && state_.HorizontalCentred;
        const Boolean down = state_.FixedSize && state_.VerticalCentred;
        for (Rect* box : {&surface_.fraPlate.box, &surface_.fraData.box}) {
            box->left = across ? static_cast<Single>((width - box->width) / 2) : 0;
            box->top =
                down ? static_cast<Single>((height - box->height - surface_.cmdData.box.height) / 2)
                     : 0;
        }
    }

    PlateState& state_;
    Surface& surface_;
    ControlParts parts_;
    cmPlate& plate_;
    CompoundWell& subWells_;
    Boolean fullReset_;
    LegendLayout legends_;
};

} // namespace

void LayoutPlate(ControlParts parts, Boolean fullReset) {
    parts.site.RepaintAll();
    parts.site.PlateChanged();
    if (fullReset) parts.site.SelectionChanged();
    Layout(parts, fullReset).Run();
}

} // namespace zorvane
