#include "model/WellStyle.h"

#include "runtime/Text.h"

#include <algorithm>

namespace zorvane {

std::optional<Long> WellStyleCode(std::string_view name) {
    const auto named = [name](const WellStyle& style) { return EqualNoCase(style.name, name); };
    const auto found = std::find_if(kWellStyles.begin(), kWellStyles.end(), named);
    if (found == kWellStyles.end()) return std::nullopt;
    return static_cast<Long>(found - kWellStyles.begin());
}

} // namespace zorvane
