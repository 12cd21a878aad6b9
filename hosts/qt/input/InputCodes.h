#pragma once

#include "runtime/Types.h"

#include <QString>
#include <Qt>

namespace zorvane {

// The toolkit's buttons and keys in the numbers of PlateTypes.h.

/// 0 for a button that the control knows nothing of.
Integer ButtonCode(Qt::MouseButton button);
/// The sum of the buttons; those that the control knows nothing of add a bit of their own.
Integer ButtonCodes(Qt::MouseButtons buttons);
Integer ShiftCodes(Qt::KeyboardModifiers modifiers);
/// The platform's code of a key that means something to the control, else 0.
Integer KeyCode(int key);
/// The code of the character that a key types; 0 for none or one that takes more than a byte.
Integer CharacterCode(const QString& text);

} // namespace zorvane
