#include "formats/labware/Labware.h"
#include "model/cmPlate.h"
#include "platform/memory/MemoryProcess.h"
#include "runtime/RuntimeError.h"

#include <cstdint>
#include <cstdlib>

using namespace zorvane;

// Labware that can be read gives a definition, and what is exported of that reads back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static MemoryProcess process;
    const InstalledProcess installed(process);
    cmPlate plate;
    try {
        const String json(reinterpret_cast<const char*>(data), size);
        plate.SetFromText(DefinitionText(ReadLabware(json).plate));
    } catch (const RuntimeError&) {
        return 0;
    }
    String exported;
    try {
        exported = LabwareText(plate, 1);
    } catch (const RuntimeError&) {
        return 0; // a depth beyond the height has no place in labware
    }
    if (ReadLabware(exported).plate.subWells.size() != 1) std::abort();
    return 0;
}
