#include "control/Surface.h"

#include "runtime/RuntimeError.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zorvane {

Single OnSurface(Double value) {
    if (!(value <= std::numeric_limits<Integer>::max() &&
          value >= std::numeric_limits<Integer>::min()))
        Raise(ErrorNumber::Overflow);
    return static_cast<Single>(value);
}

Surface::Surface() {
    fraPlate.visible = true;
    fraData.box = {45, 45, 2775, 4740};
    cmdData.box = {120, 240, 240, 240};
    cmdData.bold = true;
    cmdData.caption = "?";
    ResizeWells(1);
    lblWell.push_back({.box = {60, 210, 165, 195}, .caption = {}});
}

void Surface::ResizeWells(std::size_t count) {
    const std::size_t elements = std::max<std::size_t>(count, 1);
    WellRim.resize(elements);
    WellBottom.resize(elements);
    WellText.resize(elements);
    WellTag.resize(elements);
}

void Surface::CreateLegends(std::size_t count) {
    if (count <= lblWell.size()) return;
    const Label first = lblWell.front();
    lblWell.resize(count, first);
}

Rect Surface::WellBox(std::size_t wellNo) const {
    const Rect shapes = Union(WellRim[wellNo].box, WellBottom[wellNo].box);
    return WellText[wellNo].visible ? Union(shapes, WellText[wellNo].box) : shapes;
}

std::pair<Integer, Integer> Surface::Touched(const PaintRun& run, const Rect& area) const {
    if (!run.bounds.Intersects(area)) return {Integer{0}, Integer{0}};
    if (run.pitch < 1) return {Integer{0}, run.count};

    const Rect first = WellBox(static_cast<std::size_t>(run.first));
    const auto clamped = [&run](Double column) {
        return static_cast<Integer>(std::clamp(column, 0.0, static_cast<Double>(run.count)));
    };
    return {clamped(std::floor((Double{area.left} - first.Right()) / run.pitch) + 1),
            clamped(std::ceil((Double{area.Right()} - first.left) / run.pitch))};
}

} // namespace zorvane
