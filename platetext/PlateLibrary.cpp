#include "model/cmPlate.h"
#include "platform/Process.h"
#include "runtime/RuntimeError.h"

/// Finding a plate by name in a library file.
namespace zorvane {

namespace {

constexpr Integer kOtherPlate = 1;

/// Reads plates until one has the name; false when the reading stops before.
bool ReadUntilFound(cmPlate& plate, TextFile& file, const String& plateName) {
    for (;;) {
        const Integer result = plate.ReadNextPlate(file, plateName);
        if (result == 0) return true;
        if (result != kOtherPlate || file.AtEnd()) return false;
    }
}

} // namespace

// By value: the name may be this object's own, which reading overwrites.
Boolean cmPlate::SetPlate(const String& fileName,
                          String plateName) { // NOLINT(performance-unnecessary-value-param)
    if (plateName.empty() || fileName.empty()) return false;
    String failure = "Can't find Plate <" + plateName + "> in " + fileName;
    try {
        TextFile file;
        file.OpenInput(fileName);
        if (ReadUntilFound(*this, file, plateName)) return true;
    } catch (const RuntimeError&) {
        failure = "Error trying to read \"" + plateName + "\" from <" + fileName + ">";
    }
    CurrentProcess().Messages().Show({failure});
    return false;
}

} // namespace zorvane
