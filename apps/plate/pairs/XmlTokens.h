#pragma once

#include "runtime/Types.h"

#include <string_view>
#include <vector>

namespace zorvane {

/// The tags and texts of a saved list in their order, without what its readers make no difference
/// of: the header, line ends, indentation, letter case of tags, how a character or an empty member
/// is written, and the attribute that repeats a field's name. Two files with the same tokens hold
/// the same.
std::vector<String> XmlTokens(std::string_view xml);

} // namespace zorvane
