#include "model/cmPlate.h"

#include <cstddef>
#include <cstdint>

/// Any bytes may stand in a definition; what is written from them may be read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zorvane::cmPlate plate;
    plate.SetFromText(zorvane::String(data, data + size));
    const zorvane::String recorded = plate.Text();
    plate.SetFromText(plate.AsText());
    plate.SetFromText(recorded);
    return 0;
}
