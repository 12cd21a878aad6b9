#include "model/LabelText.h"

#include "runtime/RuntimeError.h"

namespace zorvane {

CharacterAt LabelCharacter(std::string_view label) {
    if (label.empty()) Raise(ErrorNumber::InvalidProcedureCall);
    return FirstCharacter(label);
}

String LabelText(Checked code, const CharacterAt& countedFrom) {
    const Integer character = code.Value();
    if (character < 0 || character > 255) Raise(ErrorNumber::InvalidProcedureCall);
    if (countedFrom.valid) return EncodeUtf8(character);
    return {static_cast<char>(static_cast<unsigned char>(character))};
}

} // namespace zorvane
