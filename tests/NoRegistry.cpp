#include <cstdlib>

namespace {

/// Keeps every test, however it is run, from the registry of whoever runs it. Below a device nobody
/// can make a file.
[[maybe_unused]] const int kNoRegistry = setenv("ZORVANE_REGISTRY", "/dev/null/registry.sqlite", 1);

} // namespace
