#include "drawing/PlatePicture.h"

#include "control/WellNames.h"
#include "drawing/PlatePainter.h"
#include "platform/Process.h"
#include "runtime/RuntimeError.h"

namespace zorvane {

namespace {

constexpr Single kUnitsPerPixel = 15;

/// Takes the message of a load that fails, as nobody may be there to see it.
class KeptMessage final : public MessageDisplay {
  public:
    void Show(const Message& message) override { text = message.prompt; }

    String text = "No plate is named";
};

Integer WellNamed(const WellNames& names, const String& name) {
    const std::optional<Integer> well = names.Find(name);
    if (!well) Raise(ErrorNumber::SubscriptOutOfRange, "The plate has no well " + name);
    return *well;
}

/// A definition as the control reads it, from one with LF line ends.
String WithCrLf(std::string_view text) {
    String converted;
    for (const char c : text) {
        if (c == '\n' && !converted.ends_with('\r')) converted += '\r';
        converted += c;
    }
    return converted;
}

String DescriptionOf(const Plate& plate) {
    const Long positions = Long{plate.Rows} * plate.Cols;
    return std::to_string(positions) + " positions in " + std::to_string(plate.Rows) +
           " rows and " + std::to_string(plate.Cols) +
           " columns, sub-wells in each: " + std::to_string(plate.SubWellCount);
}

} // namespace

PlatePicture::PlatePicture(Single scale) {
    plate_.FixedSize = false;
    plate_.HorizontalCentred = true; // once it is fitted
    plate_.VerticalCentred = true;
    plate_.DrawingScale(scale);
}

PlatePicture::PlatePicture(const PictureRequest& request) : PlatePicture(request.scale) {
    Load(request);
    if (request.width > 0 && request.height > 0)
        FitInto(request.width * kUnitsPerPixel, request.height * kUnitsPerPixel);
    Mark(request);
}

void PlatePicture::Load(const PictureRequest& request) {
    if (!request.definition.empty()) {
        plate_.PlateClassText(WithCrLf(request.definition));
        if (plate_.PlateName().empty())
            Raise(ErrorNumber::InvalidProcedureCall, "The text defines no plate");
        return;
    }
    KeptMessage failure;
    const TakenMessages taken(failure);
    if (!plate_.SetPlate(request.plate, request.fileName))
        Raise(ErrorNumber::InvalidProcedureCall, failure.text);
}

void PlatePicture::Mark(const PictureRequest& request) {
    const WellNames names(plate_);
    for (const String& name : request.selected)
        plate_.SelectWell(WellNamed(names, name), true);
    for (const DrawnWell& each : request.wells) {
        const Integer well = WellNamed(names, each.name);
        if (each.color != kNoColor) plate_.WellFill(well, each.color);
        plate_.WellAnnotation(well, each.caption);
    }
}

void PlatePicture::FitInto(Single width, Single height) {
    site_.SetSize(width, height);
    plate_.FixedSize = true;
    // A layout fits the scale after it has sized the frame: a second one sizes it again.
    for (int layouts = 0; layouts < 2; ++layouts)
        plate_.DrawingScale(plate_.DrawingScale());
}

Rect PlatePicture::Area() const {
    if (plate_.FixedSize) return {0, 0, site_.Width(), site_.Height()};
    const Rect& frame = plate_.Elements().fraPlate.box;
    return {0, 0, frame.width, frame.height};
}

SvgPage PlatePicture::Page() const {
    return {.area = Area(), .title = plate_.PlateName(), .description = DescriptionOf(plate_)};
}

void PlatePicture::Paint(Canvas& canvas, const SystemPalette& palette) const {
    PaintControl(plate_.Elements(), palette, canvas, Details::Native);
}

String DrawPlate(const PictureRequest& request) {
    const PlatePicture picture(request);
    SvgCanvas canvas(picture.Page());
    picture.Paint(canvas);
    return canvas.Finish();
}

} // namespace zorvane
