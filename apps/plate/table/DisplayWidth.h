#pragma once

#include <string_view>

namespace zorvane {

/// How many columns of a terminal a text takes, in every locale: two for wide characters such as
/// those of Chinese, none for marks that combine with the character before them.
std::size_t DisplayWidth(std::string_view text);

} // namespace zorvane
