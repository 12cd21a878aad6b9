#pragma once

/// Marks what other programs may use of a shared library; everything else stays hidden in it. On
/// Windows the libraries are static, which needs no mark.
#ifdef _WIN32
#define ZORVANE_EXPORT
#else
#define ZORVANE_EXPORT __attribute__((visibility("default")))
#endif
