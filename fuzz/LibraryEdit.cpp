#include "library/LibraryText.h"
#include "runtime/RuntimeError.h"

#include <cstdint>
#include <cstdlib>

using namespace zorvane;

// The first zero byte ends a library; a definition follows. Saving it in the library changes no
// byte outside its block, and a look-up finds it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::size_t end = input.find('\0');
    if (end == input.npos) return 0;
    const LibraryText before{String(input.substr(0, end))};
    const String definition(input.substr(end + 1));
    try {
        const auto block = before.Get(NameIn(definition));
        const LibraryText after = before.WithReplaced(definition);
        const std::string_view bytes = after.Bytes();
        if (!bytes.starts_with(input.substr(0, block.begin))) std::abort();
        if (!bytes.ends_with(input.substr(block.end, end - block.end))) std::abort();
        if (!after.Find(block.name)) std::abort();
    } catch (const RuntimeError&) {
        return 0;
    }
    return 0;
}
