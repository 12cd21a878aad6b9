#include "control/WellElements.h"

#include "runtime/RuntimeError.h"

namespace zorvane {

namespace {

template <class Elements>
auto& ElementOf(Elements& elements, Integer wellNo) {
    if (wellNo < 0 || static_cast<std::size_t>(wellNo) >= elements.size())
        Raise(ErrorNumber::SubscriptOutOfRange);
    return elements[static_cast<std::size_t>(wellNo)];
}

} // namespace

Shape& RimOf(Surface& surface, Integer wellNo) { return ElementOf(surface.WellRim, wellNo); }

const Shape& RimOf(const Surface& surface, Integer wellNo) {
    return ElementOf(surface.WellRim, wellNo);
}

Shape& BottomOf(Surface& surface, Integer wellNo) { return ElementOf(surface.WellBottom, wellNo); }

const Shape& BottomOf(const Surface& surface, Integer wellNo) {
    return ElementOf(surface.WellBottom, wellNo);
}

Label& TextOf(Surface& surface, Integer wellNo) { return ElementOf(surface.WellText, wellNo); }

const Label& TextOf(const Surface& surface, Integer wellNo) {
    return ElementOf(surface.WellText, wellNo);
}

String& TagOf(Surface& surface, Integer wellNo) { return ElementOf(surface.WellTag, wellNo); }

void SetRimFill(ControlParts parts, Integer wellNo, Long color) {
    Shape& rim = RimOf(parts.surface, wellNo);
    rim.fill = color;
    RepaintInPlate(parts, rim.box);
    parts.site.WellDataChanged(wellNo, wellNo);
}

void SetBottomFill(ControlParts parts, Integer wellNo, Long color) {
    Shape& bottom = BottomOf(parts.surface, wellNo);
    bottom.fill = color;
    RepaintInPlate(parts, bottom.box);
    parts.site.WellDataChanged(wellNo, wellNo);
}

void SetAnnotation(ControlParts parts, Integer wellNo, const String& caption) {
    TextOf(parts.surface, wellNo).caption = caption;
    RepaintInPlate(parts, parts.surface.WellBox(static_cast<std::size_t>(wellNo)));
    parts.site.WellDataChanged(wellNo, wellNo);
}

void HideSelectBox(ControlParts parts) {
    if (!parts.surface.SelectBox.visible) return;
    parts.surface.SelectBox.visible = false;
    RepaintInPlate(parts, parts.surface.SelectBox.box);
}

void RepaintInPlate(ControlParts parts, const Rect& area) {
    if (!parts.surface.fraPlate.visible) return;
    const Rect& plate = parts.surface.fraPlate.box;
    parts.site.Repaint(area.Moved(plate.left, plate.top));
}

} // namespace zorvane
