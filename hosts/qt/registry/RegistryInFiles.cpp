#include "hosts/qt/registry/DesktopRegistry.h"
#include "platform/sqlite/SqliteRegistry.h"

namespace zorvane {

std::unique_ptr<Registry> NewDesktopRegistry() { return std::make_unique<SqliteRegistry>(); }

} // namespace zorvane
