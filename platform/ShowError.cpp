#include "platform/ShowError.h"

#include "platform/Process.h"

#include <string>

namespace zorvane {

void ShowError(const RuntimeError& error, std::string_view where) {
    CurrentMessages().Show(
        {"Error number " + std::to_string(error.Number()) + "\r\n" + error.Description(),
         "Error in " + error.Source() + "." + String(where)});
}

} // namespace zorvane
