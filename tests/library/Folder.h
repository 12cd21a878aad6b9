#pragma once

#include "Test.h"

namespace zorvane {

using Folder = TempFolder;

} // namespace zorvane
