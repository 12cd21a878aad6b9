#include "drawing/PlatePainter.h"

#include "drawing/TextFitting.h"

namespace zorvane {

namespace {

constexpr Long kButtonHighlight = SystemColor(0x14);
constexpr Long kButtonDarkShadow = SystemColor(0x15);

constexpr Single kPixel = 15;
constexpr Single kCaptionInset = 120; ///< from a frame's corner to its caption
constexpr Single kCaptionRoom = 45;   ///< the gap in the border at either end of the caption
/// How far a legend may reach out of its box, which has room for one or two characters.
constexpr Single kLegendReach = 150;

/// What the text of a well leaves free of its rim at either side.
constexpr Single kRimMargin = 30;

class Painter {
  public:
    Painter(const Surface& surface, const SystemPalette& palette, Canvas& canvas)
        : surface_(surface), palette_(palette), canvas_(canvas), clip_(canvas.Clip()) {}

    void Paint(Details details) const {
        canvas_.FillRectangle(Color(kButtonFace), clip_);
        PaintPlate();
        if (details == Details::Native) return;
        PaintFrame(surface_.fraData, "details");
        PaintButton(surface_.cmdData);
    }

  private:
    Rgb Color(Long color) const { return Resolve(color, palette_); }

    void PaintPlate() const {
        const Frame& plate = surface_.fraPlate;
        if (!plate.visible) return;
        PaintFrame(plate, "plate");
        // A container shows nothing of its contents outside of itself.
        canvas_.BeginClip(plate.box);
        PaintContents(plate.box.left, plate.box.top);
        if (surface_.SelectBox.visible) {
            canvas_.BeginGroup("selection");
            canvas_.DrawInvertedOutline(
                surface_.SelectBox.box.Moved(plate.box.left, plate.box.top));
            canvas_.EndGroup();
        }
        canvas_.EndClip();
    }

    /// Wells and legends, whose place is relative to the plate area's corner at `x`, `y`.
    void PaintContents(Single x, Single y) const {
        // Canvases may move shapes to whole pixels, and so a little out of their boxes.
        const Rect area = clip_.Moved(-x, -y).Grown(kPixel);
        const Rect legendArea{area.left - kLegendReach, area.top, area.width + 2 * kLegendReach,
                              area.height};
        canvas_.BeginGroup("wells");
        for (const PaintRun& run : surface_.paintOrder) {
            const bool wells = run.kind == PaintRun::Kind::Wells;
            const auto [first, last] = surface_.Touched(run, wells ? area : legendArea);
            canvas_.BeginGroup({});
            for (Integer i = first; i < last; ++i) {
                const auto element = static_cast<std::size_t>(run.first + i);
                wells ? PaintWell(element, x, y) : PaintLegend(surface_.lblWell[element], x, y);
            }
            canvas_.EndGroup();
        }
        canvas_.EndGroup();
    }

    void PaintWell(std::size_t well, Single x, Single y) const {
        PaintShape(surface_.WellRim[well], x, y);
        PaintShape(surface_.WellBottom[well], x, y);
        const Label& text = surface_.WellText[well];
        if (!text.visible || text.caption.empty()) return;
        Rect box = text.box;
        if (LinesIn(box) == 1) {
            // A single line may reach as far as the rim does, but not out of what is repainted.
            const Rect whole = surface_.WellBox(well);
            box.left = whole.left + kRimMargin;
            box.width = whole.width - 2 * kRimMargin;
        }
        // Defined wells are black unless the host chooses other colours.
        const Rgb color = ReadableOn(Color(surface_.WellBottom[well].fill), Color(text.color));
        DrawTextBlock(canvas_, {.color = color}, box.Moved(x, y), text.caption);
    }

    void PaintShape(const Shape& shape, Single x, Single y) const {
        if (!shape.visible) return;
        canvas_.DrawShape({.kind = shape.kind, .fill = Color(shape.fill), .outlined = shape.border},
                          shape.box.Moved(x, y));
    }

    void PaintLegend(const Label& legend, Single x, Single y) const {
        if (!legend.visible || legend.caption.empty()) return;
        const Rect& box = legend.box;
        DrawFittedText(
            canvas_, {.color = Color(legend.color)},
            {box.left + x - kLegendReach, box.top + y, box.width + 2 * kLegendReach, box.height},
            legend.caption);
    }

    void PaintFrame(const Frame& frame, std::string_view group) const {
        if (!frame.visible || !clip_.Intersects(frame.box)) return;
        canvas_.BeginGroup(group);
        canvas_.FillRectangle(Color(frame.back), frame.box);
        PaintBorder(frame.box);
        PaintCaption(frame);
        canvas_.EndGroup();
    }

    /// An etched line through the middle of the caption, and around.
    void PaintBorder(const Rect& frame) const {
        const Single top = kLineHeight / 2;
        const Rect dark{frame.left, frame.top + top, frame.width - kPixel,
                        frame.height - top - kPixel};
        canvas_.DrawRectangle(Color(kButtonHighlight), dark.Moved(kPixel, kPixel));
        canvas_.DrawRectangle(Color(kButtonShadow), dark);
    }

    void PaintCaption(const Frame& frame) const {
        const Rect line{frame.box.left + kCaptionInset, frame.box.top,
                        frame.box.width - 2 * kCaptionInset, kLineHeight};
        if (frame.caption.empty() || line.Empty() || !clip_.Intersects(frame.box)) return;
        const String caption = Shortened(canvas_, frame.caption, false, line.width);
        canvas_.FillRectangle(Color(frame.back),
                              {line.left - kCaptionRoom, line.top,
                               canvas_.TextWidth(caption, false) + 2 * kCaptionRoom, line.height});
        canvas_.DrawText({.color = Color(frame.text), .align = TextAlign::Left}, line, caption);
    }

    void PaintButton(const Button& button) const {
        if (!button.visible || !clip_.Intersects(button.box)) return;
        const Rect& box = button.box;
        canvas_.BeginGroup("details-button");
        // Each edge leaves uncovered what the ones before it show at the top left.
        canvas_.FillRectangle(Color(kButtonDarkShadow), box);
        canvas_.FillRectangle(Color(kButtonHighlight),
                              {box.left, box.top, box.width - kPixel, box.height - kPixel});
        canvas_.FillRectangle(
            Color(kButtonShadow),
            {box.left + kPixel, box.top + kPixel, box.width - 2 * kPixel, box.height - 2 * kPixel});
        canvas_.FillRectangle(
            Color(kButtonFace),
            {box.left + kPixel, box.top + kPixel, box.width - 3 * kPixel, box.height - 3 * kPixel});
        const Rgb text = Color(button.enabled ? kButtonText : kGrayText);
        if (!button.caption.empty())
            canvas_.DrawText({.color = text, .bold = button.bold}, box, button.caption);
        canvas_.EndGroup();
    }

    const Surface& surface_;
    const SystemPalette& palette_;
    Canvas& canvas_;
    Rect clip_;
};

} // namespace

void PaintControl(const Surface& surface, const SystemPalette& palette, Canvas& canvas,
                  Details details) {
    Painter(surface, palette, canvas).Paint(details);
}

} // namespace zorvane
