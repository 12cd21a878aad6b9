#include "formats/maps/PlateMap.h"
#include "formats/wells/WellTable.h"
#include "runtime/RuntimeError.h"

#include <cstdint>
#include <string_view>

using namespace zorvane;

template <class Action>
static void Try(Action&& action) {
    try {
        action();
    } catch (const RuntimeError&) {
    }
}

// Whatever is in a file, reading it ends, in a result or a run-time error.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    Try([&] { WellDataOf(ReadWellmap(text), {}); });
    Try([&] { WellDataOf(ReadMatrix(text, "text"), "Drop1"); });
    Try([&] {
        for (const SourcePlate& plate : ReadWellTable(text))
            Try([&] { DefinitionText(plate); });
    });
    return 0;
}
