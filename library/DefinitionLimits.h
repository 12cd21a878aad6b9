#pragma once

#include <string_view>

namespace zorvane {

/// Error 6, with a description, for a plate whose definition would take too much time or memory to
/// read: one of more than 16 MB, or one whose tags, which are recorded with each sub-well that has
/// tags before it, add up to more than that. No plate that was meant comes near.
void CheckDefinitionSizes(std::string_view library);

} // namespace zorvane
