#pragma once

#include <cstdint>
#include <string>

/// The scalar types of the public surface. Text is kept byte for byte as it was read.
namespace zorvane {

using Integer = std::int16_t;
using Long = std::int32_t;
using Single = float;
using Double = double;
using Boolean = bool;
using String = std::string;

} // namespace zorvane
