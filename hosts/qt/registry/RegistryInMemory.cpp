#include "hosts/qt/registry/DesktopRegistry.h"
#include "platform/memory/MemoryRegistry.h"

namespace zorvane {

std::unique_ptr<Registry> NewDesktopRegistry() { return std::make_unique<MemoryRegistry>(); }

} // namespace zorvane
