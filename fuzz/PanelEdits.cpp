#include "control/Plate.h"
#include "platform/memory/MemoryProcess.h"
#include "platform/memory/MemorySite.h"
#include "runtime/RuntimeError.h"

#include <cstdint>

// The first bytes are what the operator does in the details panel of the plate that the rest
// defines: a page, a command or a row, and what is typed. Failures are RuntimeErrors.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zorvane;
    constexpr std::size_t steps = 12;
    if (size < steps) return 0;
    static MemoryProcess process;
    const InstalledProcess installed(process);
    process.messages.shown.clear();
    MemorySite site;
    Plate plate(site);
    plate.FixedSize = (data[0] & 1) != 0;
    plate.EditEnable(true);
    const String text(reinterpret_cast<const char*>(data + steps), size - steps);
    const auto attempt = [](auto action) {
        try {
            action();
        } catch (const RuntimeError&) {
        }
    };
    attempt([&] { plate.PlateClassText(text); });
    for (std::size_t step = 0; step < steps; ++step) {
        const std::uint8_t choice = data[step];
        site.answers = {text.substr(text.size() * choice / 256, 4)};
        attempt([&] { plate.PageChosen(static_cast<Integer>(choice % 7)); });
        attempt([&] { plate.MenuChosen(static_cast<SubWellCommand>(choice % 9)); });
        attempt([&] { plate.RowTyped(static_cast<Integer>(choice % 13), text.substr(0, 5)); });
        attempt([&] { plate.StyleChosen(static_cast<Integer>(choice % 4)); });
        if (choice % 3 == 0) attempt([&] { plate.ApplyPressed(); });
    }
    return 0;
}
