#include "drawing/SvgCanvas.h"

#include "drawing/SansSerifWidths.h"
#include "runtime/NumberText.h"
#include "runtime/Text.h"

#include <algorithm>
#include <cmath>

namespace zorvane {

namespace {

constexpr Single kPixel = 15;
/// How far the base line of capitals and digits lies below their middle, in font sizes. The
/// attribute that centres text differs between renderers.
constexpr Single kBaseLineDrop = 0.36F;
constexpr std::string_view kFonts = "Arial, Helvetica, 'Liberation Sans', sans-serif";

String Escaped(std::string_view text) {
    String result;
    for (const char character : PrintableUtf8(text)) {
        switch (character) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        default:
            result += character;
        }
    }
    return result;
}

String Hex(Rgb color) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    String result = "#";
    for (const std::uint8_t part : {color.red, color.green, color.blue}) {
        result += kDigits[part >> 4];
        result += kDigits[part & 15];
    }
    return result;
}

/// How much larger than its natural size the page is shown.
Single ScaleOf(const SvgPage& page) {
    if (page.area.Empty()) return 1;
    const Single across = page.pixelWidth * kPixel / page.area.width;
    const Single down = page.pixelHeight * kPixel / page.area.height;
    if (across > 0 && down > 0) return std::min(across, down);
    return across > 0 ? across : down > 0 ? down : 1;
}

/// Where the middle of a one-pixel line inside of a box runs.
constexpr Rect LineIn(const Rect& box) { return box.Grown(-kPixel / 2); }

} // namespace

SvgCanvas::SvgCanvas(const SvgPage& page) : area_(page.area) {
    const auto pixels = [](Single units) { return std::ceil(units / kPixel); };
    const Single scale = ScaleOf(page);
    const Single width = page.pixelWidth > 0 ? page.pixelWidth : pixels(area_.width * scale);
    const Single height = page.pixelHeight > 0 ? page.pixelHeight : pixels(area_.height * scale);
    grid_ = kPixel / std::max(std::round(scale), Single{1});
    area_.width = std::ceil(area_.width / grid_) * grid_;
    area_.height = std::ceil(area_.height / grid_) * grid_;

    svg_ = R"(<svg xmlns="http://www.w3.org/2000/svg" role="img")";
    Attribute("width", width);
    Attribute("height", height);
    svg_ += " viewBox=\"";
    for (const Single number : {area_.left, area_.top, area_.width})
        svg_ += GeneralText(number) + ' ';
    svg_ += GeneralText(area_.height) + "\"\n    ";
    Attribute("stroke-width", kPixel);
    Attribute("font-family", kFonts);
    Attribute("font-size", kFontHeight);
    Attribute("text-anchor", "middle");
    Attribute("xml:space", "preserve");
    svg_ += ">\n <title>" + Escaped(page.title) + "</title>\n";
    if (!page.description.empty()) svg_ += " <desc>" + Escaped(page.description) + "</desc>\n";
    groups_.push_back({{}, {"#000000", "none"}, true, {}});
}

Single SvgCanvas::Snapped(Single position) const { return std::round(position / grid_) * grid_; }

/// Sizes are whole pixels by themselves, so that equal wells stay equal.
Rect SvgCanvas::Placed(const Rect& box) const {
    return {Snapped(box.left), Snapped(box.top), box.width, box.height};
}

Rect SvgCanvas::WithSnappedEdges(const Rect& box) const {
    const Single left = Snapped(box.left);
    const Single top = Snapped(box.top);
    return {left, top, Snapped(box.Right()) - left, Snapped(box.Bottom()) - top};
}

String SvgCanvas::Finish() {
    while (groups_.size() > 1)
        EndGroup();
    svg_ += "</svg>\n";
    return std::move(svg_);
}

void SvgCanvas::DrawShape(const ShapeStyle& style, const Rect& box) {
    const bool square = style.kind == ShapeKind::Square || style.kind == ShapeKind::Circle;
    const Rect whole = Placed(square ? CentredSquare(box) : box);
    // A shape with no room inside of its outline is all outline.
    const bool solid = style.outlined && LineIn(whole).Empty();
    const bool outlined = style.outlined && !solid;
    const Rect line = outlined ? LineIn(whole) : whole;
    const String fill = Hex(solid ? kBlack : style.fill);
    const String stroke = outlined ? "#000000" : "none";

    switch (style.kind) {
    case ShapeKind::Circle:
    case ShapeKind::Oval:
        WriteEllipse({fill, stroke}, line);
        break;
    case ShapeKind::Rectangle:
    case ShapeKind::Square:
        WriteBox({fill, stroke}, line);
        break;
    case ShapeKind::Rounded:
        WriteBox({fill, stroke}, line, std::min(line.width, line.height) / 4);
    }
}

void SvgCanvas::FillRectangle(Rgb color, const Rect& box) {
    const Rect edges = WithSnappedEdges(box);
    if (!edges.Empty()) WriteBox({Hex(color), "none"}, edges);
}

void SvgCanvas::DrawRectangle(Rgb color, const Rect& box) {
    const Rect line = LineIn(WithSnappedEdges(box));
    if (!line.Empty()) WriteBox({"none", Hex(color)}, line);
}

void SvgCanvas::DrawText(const TextStyle& style, const Rect& box, std::string_view text) {
    const bool centred = style.align == TextAlign::Centre;
    BeginElement("text", {Hex(style.color), "none"});
    Attribute("x", centred ? box.left + box.width / 2 : box.left);
    Attribute("y", box.top + box.height / 2 + kBaseLineDrop * kFontHeight);
    if (!centred) Attribute("text-anchor", "start");
    if (style.bold) Attribute("font-weight", "bold");
    svg_ += '>' + Escaped(text) + "</text>\n";
}

Single SvgCanvas::TextWidth(std::string_view text, Boolean bold) const {
    return SansSerifWidth(text, bold) * kFontHeight;
}

void SvgCanvas::DrawInvertedOutline(const Rect& box) {
    const Rect line = LineIn(WithSnappedEdges(box));
    if (line.Empty()) return;
    BeginElement("rect", {"none", Hex(kWhite)});
    BoxAttributes(line);
    Attribute("stroke-dasharray", kPixel);
    // The line starts in the middle of a pixel, the dots at its edge.
    Attribute("stroke-dashoffset", kPixel / 2);
    Attribute("style", "mix-blend-mode:difference");
    svg_ += "/>\n";
}

// A clip path is defined outside of the groups that have not begun yet, so they may stay unwritten.
void SvgCanvas::BeginClip(const Rect& box) {
    const String id = "clip" + std::to_string(++clips_);
    svg_.append(groups_.size(), ' ') += "<clipPath id=\"" + id + "\"><rect";
    BoxAttributes(WithSnappedEdges(box));
    svg_ += "/></clipPath>\n";
    groups_.push_back({{}, {}, false, id});
}

void SvgCanvas::BeginGroup(std::string_view name) {
    groups_.push_back({String(name), {}, false, {}});
}

void SvgCanvas::EndGroup() {
    const bool begun = groups_.back().begun;
    groups_.pop_back();
    if (begun) svg_.append(groups_.size(), ' ') += "</g>\n";
}

void SvgCanvas::BeginElement(std::string_view name, const Paint& paint) {
    BeginGroups(paint);
    StartTag(name, groups_.size());
    Differences(paint, groups_.back().paint);
}

/// Writes the start tags of the groups that have had no element yet; the innermost one takes the
/// colours of this first one.
void SvgCanvas::BeginGroups(const Paint& paint) {
    for (std::size_t depth = 1; depth < groups_.size(); ++depth) {
        Group& group = groups_[depth];
        if (group.begun) continue;
        const Paint& inherited = groups_[depth - 1].paint;
        StartTag("g", depth);
        if (!group.name.empty()) Attribute("id", group.name);
        if (!group.clipPath.empty()) Attribute("clip-path", "url(#" + group.clipPath + ")");
        group.paint = depth + 1 == groups_.size() ? paint : inherited;
        Differences(group.paint, inherited);
        group.begun = true;
        svg_ += ">\n";
    }
}

void SvgCanvas::StartTag(std::string_view name, std::size_t depth) {
    svg_.append(depth, ' ') += '<';
    svg_ += name;
}

void SvgCanvas::Differences(const Paint& paint, const Paint& inherited) {
    if (paint.fill != inherited.fill) Attribute("fill", paint.fill);
    if (paint.stroke != inherited.stroke) Attribute("stroke", paint.stroke);
}

void SvgCanvas::Attribute(std::string_view name, std::string_view value) {
    ((svg_ += ' ') += name) += "=\"";
    (svg_ += value) += '"';
}

void SvgCanvas::Attribute(std::string_view name, Double value) {
    Attribute(name, GeneralText(std::round(value * 100) / 100));
}

void SvgCanvas::BoxAttributes(const Rect& box) {
    Attribute("x", box.left);
    Attribute("y", box.top);
    Attribute("width", box.width);
    Attribute("height", box.height);
}

void SvgCanvas::WriteBox(const Paint& paint, const Rect& box, Single cornerRadius) {
    BeginElement("rect", paint);
    BoxAttributes(box);
    if (cornerRadius > 0) Attribute("rx", cornerRadius);
    svg_ += "/>\n";
}

void SvgCanvas::WriteEllipse(const Paint& paint, const Rect& box) {
    const bool circle = box.width == box.height;
    BeginElement(circle ? "circle" : "ellipse", paint);
    Attribute("cx", box.left + box.width / 2);
    Attribute("cy", box.top + box.height / 2);
    Attribute(circle ? "r" : "rx", box.width / 2);
    if (!circle) Attribute("ry", box.height / 2);
    svg_ += "/>\n";
}

} // namespace zorvane
