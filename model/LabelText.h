#pragma once

#include "runtime/Checked.h"
#include "runtime/Text.h"
#include "runtime/Types.h"

#include <string_view>

namespace zorvane {

/// The first character of a row or column label; error 5 for an empty one.
CharacterAt LabelCharacter(std::string_view label);

/// The label made of one character code, in the encoding that the label it was counted from has.
/// Error 5 outside 0 to 255.
String LabelText(Checked code, const CharacterAt& countedFrom);

} // namespace zorvane
