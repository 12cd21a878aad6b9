#pragma once

#include "platform/MessageDisplay.h"
#include "platform/Registry.h"
#include "platform/Screen.h"
#include "runtime/Export.h"

namespace zorvane {

/// What the process offers to every control in it.
class ZORVANE_EXPORT Process {
  public:
    virtual ~Process() = default;
    virtual MessageDisplay& Messages() = 0;
    virtual Screen& TheScreen() = 0;
    virtual Registry& TheRegistry() = 0;
};

/// The current process: the one installed last or, where there is none, the default one, which
/// initially writes messages to standard error, has a screen of 96 dots an inch and an empty
/// registry.
ZORVANE_EXPORT Process& CurrentProcess();

/// Where a message of this thread goes: to the display that took its messages last or, where there
/// is none, to that of the current process.
ZORVANE_EXPORT MessageDisplay& CurrentMessages();

/// Replaces the default process for the rest of the program, which the new one must outlive. An
/// installed process stays current whatever the default is.
ZORVANE_EXPORT void DefaultProcess(Process& process);

/// Makes a process the current one for as long as this object lives, then restores the previous
/// one.
class ZORVANE_EXPORT InstalledProcess {
  public:
    explicit InstalledProcess(Process& process);
    ~InstalledProcess();
    InstalledProcess(const InstalledProcess&) = delete;
    InstalledProcess& operator=(const InstalledProcess&) = delete;

  private:
    Process* before_;
};

/// Hands the messages of this thread to a display for as long as this object lives.
class ZORVANE_EXPORT TakenMessages {
  public:
    explicit TakenMessages(MessageDisplay& display);
    ~TakenMessages();
    TakenMessages(const TakenMessages&) = delete;
    TakenMessages& operator=(const TakenMessages&) = delete;

  private:
    MessageDisplay* before_;
};

} // namespace zorvane
