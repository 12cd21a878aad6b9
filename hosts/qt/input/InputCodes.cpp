#include "hosts/qt/input/InputCodes.h"

#include "control/PlateTypes.h"

namespace zorvane {

namespace {

constexpr Integer kShiftKeyCode = 16;
constexpr Integer kCtrlKeyCode = 17;
constexpr Integer kAltKeyCode = 18;
constexpr Integer kOtherButton = 8;

} // namespace

Integer ButtonCode(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return kLeftButton;
    case Qt::RightButton:
        return kRightButton;
    case Qt::MiddleButton:
        return kMiddleButton;
    default:
        return 0;
    }
}

Integer ButtonCodes(Qt::MouseButtons buttons) {
    int codes = 0;
    for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        if (buttons.testFlag(button)) codes |= ButtonCode(button);
    if (buttons & ~(Qt::LeftButton | Qt::RightButton | Qt::MiddleButton)) codes |= kOtherButton;
    return static_cast<Integer>(codes);
}

Integer ShiftCodes(Qt::KeyboardModifiers modifiers) {
    return static_cast<Integer>((modifiers.testFlag(Qt::ShiftModifier) ? kShiftKey : 0) |
                                (modifiers.testFlag(Qt::ControlModifier) ? kCtrlKey : 0) |
                                (modifiers.testFlag(Qt::AltModifier) ? kAltKey : 0));
}

Integer KeyCode(int key) {
    switch (key) {
    case Qt::Key_Left:
        return kLeftArrow;
    case Qt::Key_Up:
        return kUpArrow;
    case Qt::Key_Right:
        return kRightArrow;
    case Qt::Key_Down:
        return kDownArrow;
    case Qt::Key_Shift:
        return kShiftKeyCode;
    case Qt::Key_Control:
        return kCtrlKeyCode;
    case Qt::Key_Alt:
        return kAltKeyCode;
    default:
        return 0;
    }
}

Integer CharacterCode(const QString& text) {
    if (text.size() != 1 || text[0].unicode() > 0xFF) return 0;
    return static_cast<Integer>(text[0].unicode());
}

} // namespace zorvane
