#pragma once

#include "apps/plate/registry/RegistryPath.h"
#include "platform/sqlite/RegistryFile.h"

#include <string_view>
#include <vector>

namespace zorvane {

struct ImportedKey {
    RegistryPath path;
    std::vector<StoredValue> values;
};

/// Reads what ExportText writes of keys. Fails with the number of the line for anything else.
std::vector<ImportedKey> ReadExportText(std::string_view text);

} // namespace zorvane
