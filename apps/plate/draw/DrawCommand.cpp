#include "apps/plate/Arguments.h"
#include "apps/plate/Command.h"
#include "apps/plate/Files.h"
#include "apps/plate/draw/LibraryFile.h"
#include "apps/plate/draw/ShownWellData.h"
#include "control/WellNames.h"
#include "drawing/PlatePicture.h"
#include "platform/Process.h"
#include "runtime/NumberText.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

namespace zorvane {

namespace {

constexpr int kTwipsPerPixel = 15;
constexpr int kFewestPixels = 50;
constexpr int kMostPixels = 2184; // what 16-bit drawing units reach to

struct Size {
    int width = 0; ///< pixels
    int height = 0;
};

struct Options {
    String plateLibrary;
    String plate;
    String output;
    Single scale = 50;
    String size;
    std::vector<String> selected;
    String data;
};

std::optional<Size> ParseSize(const String& text) {
    Size size;
    int read = 0;
    if (std::sscanf(text.c_str(), "%5dx%5d%n", &size.width, &size.height, &read) != 2 ||
        static_cast<std::size_t>(read) != text.size())
        return std::nullopt;
    const auto fits = [](int pixels) { return pixels >= kFewestPixels && pixels <= kMostPixels; };
    return fits(size.width) && fits(size.height) ? std::optional(size) : std::nullopt;
}

String CheckSize(const String& text) {
    if (ParseSize(text)) return {};
    return "\"" + text + "\" is not a size from 50x50 to 2184x2184";
}

String CheckScale(const String& text) {
    if (IsNumber(text) && LeadingNumber(text) > 0) return {};
    return "\"" + text + "\" is not a number greater than 0";
}

/// Loads a plate without the message that the control has for a person in front of it.
bool SetQuietly(Plate& plate, const String& name, const String& library) {
    struct NoMessages final : MessageDisplay {
        void Show(const Message& /*message*/) override {}
    };
    NoMessages none;
    const TakenMessages taken(none);
    return plate.SetPlate(name, library);
}

/// One picture in the making.
class Drawing {
  public:
    explicit Drawing(const Options& options) : options_(options) {}

    void Load() {
        const LibraryText library = ReadLibrary(options_.plateLibrary);
        const LibraryFile file(options_.plateLibrary, library.Bytes());
        Plate& plate = picture_.Control();
        if (!SetQuietly(plate, options_.plate, file.Path())) {
            WithFile(options_.plateLibrary, [&] { library.Get(options_.plate); });
            Fail(ShownName(options_.plateLibrary) + " has changed meanwhile");
        }
        if (!options_.data.empty()) keyHeight_ = ShownWellData::KeyHeight(plate);
        if (const std::optional<Size> size = ParseSize(options_.size)) FitInto(*size);
    }

    /// The picture as SVG; with data the key takes the lower end of its height.
    String Svg() {
        Plate& plate = picture_.Control();
        const WellNames names(plate);
        for (const String& name : options_.selected) {
            const auto well = names.Find(name);
            if (!well) Fail("the plate has no well " + name);
            plate.SelectWell(*well, true);
        }
        if (options_.data.empty()) return Paint(nullptr);
        const String csv = ReadFile(options_.data);
        const auto data = WithFile(options_.data, [&] { return ShownWellData(plate, csv); });
        return Paint(&data);
    }

  private:
    void FitInto(Size size) {
        const auto width = static_cast<Single>(size.width * kTwipsPerPixel);
        const auto height = static_cast<Single>(size.height * kTwipsPerPixel);
        if (height < keyHeight_ + kFewestPixels * kTwipsPerPixel)
            Fail("the size leaves no room for the plate next to the key of the data");
        picture_.FitInto(width, height - keyHeight_);
    }

    String Paint(const ShownWellData* data) {
        SvgPage page = picture_.Page();
        const Rect key{0, page.area.height, page.area.width, keyHeight_};
        page.area.height += keyHeight_;
        SvgCanvas canvas(page);
        picture_.Paint(canvas);
        if (data) {
            data->PaintSigns(picture_.Control().Elements(), canvas);
            data->PaintKey(key, canvas);
        }
        return canvas.Finish();
    }

    const Options& options_;
    PlatePicture picture_{options_.scale};
    Single keyHeight_ = 0;
};

/// The picture must not take the place of what it is drawn from.
void CheckOutput(const Options& options) {
    std::error_code ignored;
    for (const String& input : {options.plateLibrary, options.data}) {
        if (std::filesystem::equivalent(options.output, input, ignored) &&
            std::filesystem::is_regular_file(input, ignored))
            Fail(options.output + ": the picture would take the place of what it is drawn from");
    }
}

ExitCode Run(const Options& options) {
    CheckOutput(options);
    Drawing drawing(options);
    try {
        drawing.Load();
    } catch (const RuntimeError& error) {
        if (error.Is(ErrorNumber::InvalidProcedureCall))
            Fail(options.plate + PlateFailureText(error));
        if (!error.Is(ErrorNumber::Overflow)) throw;
        Fail(options.plate +
             " is too large to be drawn: choose a smaller scale, or check the library");
    }
    WriteFile(options.output, drawing.Svg());
    return kDone;
}

void AddOptions(CLI::App& parser, Options& options) {
    AddLibraryArgument(parser, options.plateLibrary);
    AddPlateArgument(parser, options.plate);
    parser.add_option("-o,--output", options.output, "SVG file; standard output if left out or -");
    auto* const scale =
        parser.add_option("--scale", options.scale, "Drawing units (1/1440 inch) a millimetre")
            ->check(CheckScale, "NUMBER")
            ->capture_default_str();
    parser.add_option("--size", options.size, "Fit the plate into WxH pixels")
        ->check(CheckSize, "WxH")
        ->excludes(scale);
    parser.add_option("--select", options.selected, "Mark wells: A1,B2 or, in a sub-well, A1.Drop")
        ->delimiter(',')
        ->allow_extra_args(false);
    parser.add_option("--data", options.data, "Show data of wells from a CSV file");
}

} // namespace

Command MakeDrawCommand(CLI::App& app) {
    auto* const parser = app.add_subcommand("draw", "Draw a plate as an SVG picture");
    auto options = std::make_shared<Options>();
    AddOptions(*parser, *options);
    parser->footer(
        "The first line of a data file names its columns: well, and any of sub-well, defined,\n"
        "volume, text, error and annotation. Volumes become colours, annotations or texts\n"
        "captions, and wells in error get a colour and a sign.\n"
        "Examples:\n"
        "  plate draw Plates.Dat Batch_96 -o batch.svg --size 800x600\n"
        "  plate draw Plates.Dat Sitting_96x2 --select A1,A2.Drop2 > sitting.svg\n"
        "  plate draw Plates.Dat Batch_96 --data run7.csv -o run7.svg");
    return {parser, [options] { return Run(*options); }};
}

} // namespace zorvane
