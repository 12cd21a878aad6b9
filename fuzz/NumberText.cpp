#include "runtime/NumberText.h"
#include "runtime/RuntimeError.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace zorvane;

// What is a number reads without an error, and what was read is written so that it reads back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const bool number = IsNumber(text);
    try {
        const Double value = LeadingNumber(text);
        FormatPicture(value, "0.000");
        if (!IsNumber(GeneralText(value))) std::abort();
    } catch (const RuntimeError&) {
        if (number) std::abort();
    }
    try {
        const Single value = LeadingSingle(text);
        if (LeadingSingle(SingleText(value)) != value) std::abort();
        ParseLong(text);
        FormatPicture(value, text);
    } catch (const RuntimeError&) {
        return 0;
    }
    return 0;
}
