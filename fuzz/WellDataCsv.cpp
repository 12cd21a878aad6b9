#include "welldata/WellDataCsv.h"
#include "platform/memory/MemoryProcess.h"
#include "platform/memory/MemorySite.h"
#include "runtime/RuntimeError.h"

#include <cstdint>
#include <cstdlib>

using namespace zorvane;

// Data that can be read can be applied, and is written so that it reads back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static MemoryProcess process;
    const InstalledProcess installed(process);
    MemorySite site;
    Plate plate(site);
    plate.PlateClassText("PLATE Demo\r\nROWS 2\r\nCOLS 3\r\nROWLABEL A\r\nCOLLABEL 1\r\n"
                         "XOVERALL 90\r\nYOVERALL 60\r\nWELL Drop1\r\nWELL Reservoir\r\n");
    const WellNames names(plate);
    try {
        ApplyWellData(plate, ParseWellData({reinterpret_cast<const char*>(data), size}, names));
    } catch (const RuntimeError&) {
        return 0;
    }
    const String written = WellDataText(plate, names);
    ApplyWellData(plate, ParseWellData(written, names));
    if (WellDataText(plate, names) != written) std::abort();
    return 0;
}
