#include "apps/viewer/logic/EventTexts.h"

#include "runtime/NumberText.h"

#include <string>

namespace zorvane::viewer {

namespace {

String ButtonsText(Integer button, Integer shift) {
    return "Button " + std::to_string(button) + ", Shift " + std::to_string(shift);
}

String PointerText(const String& event, Integer button, Integer shift, Single x, Single y) {
    return event + ": " + ButtonsText(button, shift) + ", X " + SingleText(x) + ", Y " +
           SingleText(y);
}

} // namespace

void EventTexts::DoubleClick() { onText_("DoubleClick"); }

void EventTexts::Click() { onText_("Click"); }

void EventTexts::SelectWell(Integer wellNo) {
    const String name = nameOf_(wellNo);
    onText_("SelectWell: WellNo " + std::to_string(wellNo) +
            (name.empty() ? String() : " (" + name + ")"));
}

void EventTexts::SelectMultipleWells() { onText_("SelectMultipleWells"); }

void EventTexts::MouseDown(Integer button, Integer shift, Single x, Single y) {
    onText_(PointerText("MouseDown", button, shift, x, y));
}

void EventTexts::MouseUp(Integer button, Integer shift, Single x, Single y) {
    onText_(PointerText("MouseUp", button, shift, x, y));
}

void EventTexts::DragMove(Integer button, Integer shift, Integer columns, Integer rows) {
    onText_("DragMove: " + ButtonsText(button, shift) + ", dC " + std::to_string(columns) +
            ", dR " + std::to_string(rows));
}

void EventTexts::ApplyChanges() { onText_("ApplyChanges"); }

} // namespace zorvane::viewer
