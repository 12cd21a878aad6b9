#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

namespace zorvane {

/// The title of a message box that names none of its own.
inline constexpr const char* kDefaultTitle = "Zorvane";

/// One message with the critical-stop icon. Lives for the duration of the call that shows it.
struct Message {
    String prompt;
    String title = kDefaultTitle;
};

/// Shows messages to the operator.
class ZORVANE_EXPORT MessageDisplay {
  public:
    virtual ~MessageDisplay() = default;

    /// Called when something failed that the operator must see. Returns once it has been dismissed;
    /// must bring itself to the foreground.
    virtual void Show(const Message& message) = 0;
};

} // namespace zorvane
