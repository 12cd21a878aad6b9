#include "control/wells/WellElements.h"

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

const Shape& WellElements::Rim(Integer wellNo) const { return ElementOf(surface_.WellRim, wellNo); }

const Shape& WellElements::Bottom(Integer wellNo) const {
    return ElementOf(surface_.WellBottom, wellNo);
}

const Label& WellElements::Text(Integer wellNo) const {
    return ElementOf(surface_.WellText, wellNo);
}

void WellElements::FillRim(Integer wellNo, Long color) {
    Shape& rim = ElementOf(surface_.WellRim, wellNo);
    rim.fill = color;
    notifier_.RepaintInPlate(rim.box);
    notifier_.WellDataChanged(wellNo, wellNo);
}

void WellElements::FillBottom(Integer wellNo, Long color) {
    Shape& bottom = ElementOf(surface_.WellBottom, wellNo);
    bottom.fill = color;
    notifier_.RepaintInPlate(bottom.box);
    notifier_.WellDataChanged(wellNo, wellNo);
}

void WellElements::Annotate(Integer wellNo, const String& caption) {
    ElementOf(surface_.WellText, wellNo).caption = caption;
    notifier_.RepaintInPlate(surface_.WellBox(static_cast<std::size_t>(wellNo)));
    notifier_.WellDataChanged(wellNo, wellNo);
}

void WellElements::Tag(Integer wellNo, const String& text) {
    ElementOf(surface_.WellTag, wellNo) = text;
}

} // namespace zorvane
