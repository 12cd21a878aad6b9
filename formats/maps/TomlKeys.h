#pragma once

#include <string_view>

namespace zorvane {

/// Refuses TOML with a dotted key of more than eight parts, which would make tables inside one
/// another too deep for the stack. No layout needs more than six.
void RequireShortKeys(std::string_view toml);

} // namespace zorvane
