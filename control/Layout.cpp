#include "control/Layout.h"

#include "control/SubWellDrawing.h"
#include "platform/Process.h"
#include "runtime/Checked.h"
#include "runtime/Rounding.h"

#include <algorithm>
#include <limits>

namespace zorvane {

namespace {

constexpr Single kLegendGap = 45;
constexpr Single kLeastLegendLeft = 15;
constexpr Single kColumnLegendDrop = 30;

/// A size or position on the surface, computed in double and stored once.
Single OnSurface(Double value) {
    if (!(value <= std::numeric_limits<Integer>::max() &&
          value >= std::numeric_limits<Integer>::min()))
        Raise(ErrorNumber::Overflow);
    return static_cast<Single>(value);
}

/// One layout in progress. Each member function is one step; Run has their order.
class Layout {
  public:
    Layout(ControlParts parts, Boolean fullReset)
        : state_(parts.state), surface_(parts.surface), parts_(parts),
          plate_(*parts.state.PlateDef), subWells_(*parts.state.PlateDef->CompoundWell()),
          fullReset_(fullReset) {}

    void Run() {
        CopyPlateValues();
        PlaceFrames();
        SizeWellRecords();
        if (state_.FixedSize) FitScaleToControl();
        surface_.fraPlate.visible = false;
        surface_.paintOrder.clear();
        if (subWells_.Count() > 0) AnchorLegends();
        RetireElements();
        LayOutSubWells();
        ShowShapes();
        CentreFrames();
        state_.LayoutBusy = false;
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
            if (position == 1) CreateLegends();
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
            if (position == 1 && row == rows - 1) PlaceColumnLegends();
            if (position == 1) PlaceRowLegend(row, y);
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
        if (drawing.textShown)
            text.box = {x - static_cast<Single>(drawing.textWidth) / 2,
                        y - static_cast<Single>(drawing.textHeight) / 2,
                        static_cast<Single>(drawing.textWidth),
                        static_cast<Single>(drawing.textHeight)};

        if (fullReset_) {
            rim.fill = state_.DefaultRimColor;
            bottom.fill = state_.DefaultWellColor;
            text.caption.clear();
            state_.Wells[static_cast<Integer>(well)].Selected = false;
        }
    }

    void AnchorLegends() {
        Coordinate low;
        Coordinate high;
        plate_.WellEnvelope(Checked(state_.Rows) - 1, 0, low, high);
        const Double scale = state_.DrawingScale;
        const Double width = surface_.lblWell[0].box.width;
        rowLegendLeft_ = std::max(ToSingle(low.X() * scale - width - kLegendGap), kLeastLegendLeft);
        columnLegendTop_ = ToSingle(high.Y() * scale);
        columnLegendLeft_ = ToSingle((Double{high.X()} + low.X()) * scale / 2 - width / 2);
    }

    /// Large plates show every second legend only.
    Integer LegendStep() const { return state_.Rows < 25 && state_.Cols < 17 ? 1 : 2; }

    void CreateLegends() {
        const Integer labels = Checked(1) + std::max<Integer>(state_.Rows, 0) +
                               (state_.Rows > 0 ? std::max<Integer>(state_.Cols, 0) : Integer{0});
        surface_.CreateLegends(static_cast<std::size_t>(labels));
        if (labels > state_.LabelCount) state_.LabelCount = labels;
        nextLegend_ = 1;
    }

    // The column legends stand between the row legends of the last two rows, so a step of 2 shows
    // every second one of each kind only by the way they are counted.
    void PlaceColumnLegends() {
        const Integer first = nextLegend_;
        for (Integer column = 0; column < state_.Cols; ++column) {
            const Integer number = nextLegend_;
            Label& legend = NextLegend();
            legend.visible = (number - 1) % LegendStep() == 0;
            legend.caption = plate_.ColumnLegend(column);
            const Integer offset = Checked(state_.ColumnPitch) * column;
            legend.box.left = OnSurface(Double{columnLegendLeft_} + offset);
            legend.box.top = OnSurface(Double{columnLegendTop_} + kColumnLegendDrop);
        }
        // Column legends are never brought to the front, so the wells lie over them.
        PaintLegends(surface_.paintOrder.begin(), first, state_.Cols);
    }

    void PlaceRowLegend(Integer row, Single y) {
        const Integer number = nextLegend_;
        Label& legend = NextLegend();
        legend.visible = number % LegendStep() == 0;
        legend.caption = plate_.RowLegend(row);
        legend.box.top = OnSurface(y - Double{legend.box.height} / 2);
        legend.box.left = rowLegendLeft_;
        PaintLegends(surface_.paintOrder.end(), number, 1);
    }

    Label& NextLegend() { return surface_.lblWell[static_cast<std::size_t>(nextLegend_++)]; }

    void PaintLegends(std::vector<PaintRun>::iterator before, Integer first, Integer count) {
        if (count < 1) return;
        const auto& labels = surface_.lblWell;
        const Rect bounds = Union(labels[static_cast<std::size_t>(first)].box,
                                  labels[static_cast<std::size_t>(first + count - 1)].box);
        surface_.paintOrder.insert(before,
                                   {PaintRun::Kind::Legends, first, count, Integer{0}, bounds});
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
    Single rowLegendLeft_ = 0;
    Single columnLegendTop_ = 0;
    Single columnLegendLeft_ = 0;
    Integer nextLegend_ = 1;
};

} // namespace

void LayoutPlate(ControlParts parts, Boolean fullReset) {
    try {
        Layout(parts, fullReset).Run();
    } catch (...) {
        RepaintAll(parts);
        throw;
    }
    RepaintAll(parts);
}

void ShowDataPanel(ControlParts parts, Boolean visible) {
    PlateState& state = parts.state;
    const Rect& plate = parts.surface.fraPlate.box;
    const Rect& data = parts.surface.fraData.box;
    const Single button = parts.surface.cmdData.box.height;
    Single width = parts.site.Width();
    Single height = parts.site.Height();

    if (!parts.surface.fraData.visible) state.SavedHeight = ToInteger(height);
    parts.surface.fraData.visible = visible;
    if (state.FixedSize) {
        height = visible ? data.Bottom() + button : state.SavedHeight;
    } else if (visible) {
        if (data.width > plate.width) width = data.width;
        if (data.height > plate.height) height = data.height + button / 2;
    } else {
        width = plate.width;
        height = plate.height + button / 2;
    }
    if (width != parts.site.Width() || height != parts.site.Height())
        parts.site.Resize(width, height);
    RepaintAll(parts);
}

void RepaintAll(ControlParts parts) {
    parts.site.Repaint({0, 0, parts.site.Width(), parts.site.Height()});
}

} // namespace zorvane
