#include "control/InputRouter.h"

namespace zorvane {

namespace {

// Both edges belong to a frame here: its last pixel may be cut.
Boolean Holds(const Frame& frame, Single x, Single y) {
    const Rect& box = frame.box;
    return frame.visible && box.left <= x && x <= box.Right() && box.top <= y && y <= box.Bottom();
}

} // namespace

InputRouter::Part InputRouter::PartAt(Single x, Single y) const {
    const Surface& surface = plate_.Elements();
    if (!host_.PanelIsApart() && Holds(surface.fraData, x, y)) return Part::Panel;
    return Holds(surface.fraPlate, x, y) ? Part::PlateArea : Part::Background;
}

InputRouter::Spot InputRouter::InPlate(Single x, Single y) const {
    const Rect& area = plate_.Elements().fraPlate.box;
    return {x - area.left, y - area.top};
}

Integer InputRouter::WellAt(Single x, Single y) const {
    if (PartAt(x, y) != Part::PlateArea) return -1;
    const Spot at = InPlate(x, y);
    return plate_.MouseToWell(at.x, at.y);
}

void InputRouter::Press(Integer button, Integer shift, Single x, Single y) {
    secondClick_ = false;
    Down(button, shift, x, y);
}

// The second press of a double click is a press like any other, which the double click follows.
void InputRouter::DoubleClick(Integer button, Integer shift, Single x, Single y) {
    secondClick_ = true;
    if (!Down(button, shift, x, y) || button != kLeftButton) return;
    const Part part = held_;
    if (part == Part::PlateArea) host_.Attempt([this] { plate_.AreaDoubleClicked(); });
    if (part == Part::Panel) host_.Attempt([this] { plate_.PanelDoubleClicked(); });
}

Boolean InputRouter::Down(Integer button, Integer shift, Single x, Single y) {
    // While a button is held, the part that it went down on gets the others too.
    if (held_ == Part::None) held_ = PartAt(x, y);
    if (held_ == Part::Background) return host_.Attempt([this] { plate_.BackgroundPressed(); });
    if (held_ != Part::PlateArea) return true;
    const Spot at = InPlate(x, y);
    held_ = Part::Host;
    if (host_.AnswerPress(button, shift, at)) return false;
    held_ = Part::PlateArea;
    return button == 0 || host_.Attempt([&] { plate_.ButtonDown(button, shift, at.x, at.y); });
}

void InputRouter::Move(Integer buttons, Integer shift, Single x, Single y) {
    if (held_ != Part::None && buttons == 0 && !Up(kLeftButton, shift, x, y)) return;
    const Boolean over = held_ == Part::None && PartAt(x, y) == Part::PlateArea;
    if (held_ != Part::PlateArea && !over) return;
    const Spot at = InPlate(x, y);
    host_.Attempt([&] { plate_.PointerMove(buttons, shift, at.x, at.y); });
}

void InputRouter::Release(Integer button, Integer buttons, Integer shift, Single x, Single y) {
    const Part part = held_;
    const Boolean clicked = button == kLeftButton && !secondClick_ && part == PartAt(x, y);
    if (!Up(button, shift, x, y)) return;
    if (buttons != 0) held_ = part;
    if (clicked && part == Part::PlateArea) host_.Attempt([this] { plate_.AreaClicked(); });
    if (clicked && part == Part::Panel) host_.Attempt([this] { plate_.PanelClicked(); });
}

Boolean InputRouter::Up(Integer button, Integer shift, Single x, Single y) {
    const Part part = held_;
    held_ = Part::None;
    if (part != Part::PlateArea || button == 0) return true;
    const Spot at = InPlate(x, y);
    if (!host_.Attempt([&] { plate_.ButtonUp(button, shift, at.x, at.y); })) return false;
    host_.GestureEnded();
    return true;
}

Boolean InputRouter::KeyDown(Integer keyCode, Integer character, Integer shift) {
    host_.Attempt([&] {
        if (keyCode != 0) plate_.KeyDown(keyCode, shift);
        if (character != 0) plate_.CharacterTyped(character);
    });
    return keyCode >= kLeftArrow && keyCode <= kDownArrow;
}

void InputRouter::KeyUp(Integer keyCode, Integer shift) {
    host_.Attempt([&] { plate_.KeyUp(keyCode, shift); });
}

} // namespace zorvane
