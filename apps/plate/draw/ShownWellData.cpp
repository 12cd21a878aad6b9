#include "apps/plate/draw/ShownWellData.h"

#include "control/WellGrid.h"
#include "runtime/NumberText.h"
#include "welldata/WellDataCsv.h"

#include <algorithm>
#include <string>

namespace zorvane {

namespace {

constexpr Long kDefined = 0xE0B080; // light blue
constexpr Long kInError = 0x5A64E8; // red

constexpr int kLinesOfMarks = 3;
constexpr Single kKeyLine = 240;
constexpr Single kKeyInset = 120;
constexpr Single kSwatchHeight = 165;
constexpr Single kSwatchWidth = 960;
constexpr int kSteps = 16; ///< of the scale; they divide the width into whole pixels

bool IsInError(const Plate& plate, Integer well) { return plate.ErrorCode(well) != 0; }

String CaptionOf(const Plate& plate, Integer well) {
    String caption = plate.WellAnnotation(well);
    if (caption.empty()) caption = plate.Text(well);
    if (!IsInError(plate, well)) return caption;
    return "! " + (caption.empty() ? std::to_string(plate.ErrorCode(well)) : caption);
}

Rgb Painted(Long color) { return Resolve(color, SystemPalette()); }

/// A square in the middle of a well, for those that are too small for a caption.
void PaintSign(const Rect& well, Canvas& canvas) {
    const Rect square = CentredSquare(well);
    canvas.DrawShape({.kind = ShapeKind::Square, .fill = kWhite},
                     square.Grown(-square.width * 0.3F));
}

String ScaleText(const String& subWell, const VolumeScale& scale) {
    const String least = SingleText(scale.Least());
    const String greatest = SingleText(scale.Greatest());
    return subWell + ": volume " + (least == greatest ? least : least + " to " + greatest);
}

/// The lines of a key, from the top down.
class KeyPainter {
  public:
    KeyPainter(const Rect& area, Canvas& canvas)
        : canvas_(canvas), left_(area.left + kKeyInset), top_(area.top + kKeyInset) {}

    Rect Swatch() const { return {left_, top_, kSwatchWidth, kSwatchHeight}; }

    void Line(Long color, const String& text) {
        canvas_.FillRectangle(Painted(color), Swatch());
        Finish(text);
    }

    void ScaleLine(const String& text) {
        constexpr Single width = kSwatchWidth / kSteps;
        for (int i = 0; i < kSteps; ++i) {
            const Long color = VolumeScale::ColorAt(static_cast<Double>(i) / (kSteps - 1));
            canvas_.FillRectangle(Painted(color), {left_ + static_cast<Single>(i) * width, top_,
                                                   width, kSwatchHeight});
        }
        Finish(text);
    }

  private:
    void Finish(const String& text) {
        canvas_.DrawRectangle(kBlack, Swatch());
        const Rect box{Swatch().Right() + kKeyInset, top_, 0, kSwatchHeight};
        canvas_.DrawText({.color = kBlack, .align = TextAlign::Left}, box, text);
        top_ += kKeyLine;
    }

    Canvas& canvas_;
    Single left_;
    Single top_;
};

} // namespace

ShownWellData::ShownWellData(Plate& plate, const String& csv)
    : defaultColor_(plate.DefaultWellColor()) {
    const std::vector<WellDataRow> rows = ParseWellData(csv, WellNames(plate));
    plate.DefinedWellColor = kDefined;
    plate.ErrorWellColor = kInError;
    ApplyWellData(plate, rows);
    Integer position = 0;
    for (const auto& subWell : *plate.LoadedDefinition().CompoundWell()) {
        ++position;
        scales_.push_back({subWell->WellName(), VolumeScale(plate, position)});
    }
    for (const WellDataRow& row : rows)
        if (row.hasVolume) measured_.insert(row.wellNo);
    for (Integer well = 0; well < plate.TotalWells(); ++well)
        Show(plate, well);
}

void ShownWellData::Show(Plate& plate, Integer well) {
    std::optional<Single> volume = KnownVolume(plate, well);
    // In a well that is not defined, the control tells no 0 from no volume, but the file does.
    if (measured_.contains(well)) volume = plate.GetVolume(well);
    if (IsInError(plate, well)) {
        inError_.push_back(static_cast<std::size_t>(well));
        // The control shows errors of defined wells only.
        if (!plate.IsDefined(well)) plate.WellFill(well, kInError);
    } else if (volume && ShowsVolumes()) {
        const Integer subWell = WellGrid{plate.Rows, plate.Cols}.PlaceOf(well).subWell;
        const VolumeScale& scale = scales_[static_cast<std::size_t>(subWell - 1)].scale;
        plate.WellFill(well, scale.ColorOf(*volume));
    }
    plate.WellAnnotation(well, CaptionOf(plate, well));
}

bool ShownWellData::ShowsVolumes() const {
    return !measured_.empty() ||
           std::any_of(scales_.begin(), scales_.end(),
                       [](const SubWellScale& each) { return !each.scale.Empty(); });
}

Single ShownWellData::KeyHeight(const Plate& plate) {
    return static_cast<Single>(plate.SubWellCount + kLinesOfMarks) * kKeyLine + kKeyInset;
}

void ShownWellData::PaintSigns(const Surface& surface, Canvas& canvas) const {
    canvas.BeginGroup("errors");
    for (const std::size_t well : inError_) {
        if (!surface.WellText[well].visible) {
            PaintSign(surface.WellBottom[well].box.Moved(surface.fraPlate.box.left,
                                                         surface.fraPlate.box.top),
                      canvas);
        }
    }
    canvas.EndGroup();
}

void ShownWellData::PaintKey(const Rect& area, Canvas& canvas) const {
    canvas.BeginGroup("key");
    KeyPainter key(area, canvas);
    for (const auto& [subWell, scale] : scales_)
        if (!scale.Empty()) key.ScaleLine(ScaleText(subWell, scale));
    if (ShowsVolumes()) {
        key.Line(VolumeScale::kZeroColor, "volume 0");
        key.Line(defaultColor_, "no volume");
    } else {
        key.Line(kDefined, "defined");
        key.Line(defaultColor_, "not defined");
    }
    const Rect swatch = key.Swatch();
    key.Line(kInError, "error (!)");
    PaintSign(swatch, canvas);
    canvas.EndGroup();
}

} // namespace zorvane
