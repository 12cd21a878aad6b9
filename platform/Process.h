#pragma once

#include "platform/MessageDisplay.h"
#include "platform/Registry.h"
#include "platform/Screen.h"

namespace zorvane {

/// What the process offers to every control in it.
class Process {
  public:
    virtual ~Process() = default;
    virtual MessageDisplay& Messages() = 0;
    virtual Screen& TheScreen() = 0;
    virtual Registry& TheRegistry() = 0;
};

/// The process in force: the one installed last or, where none is, the default one, which at first
/// writes messages to standard error, has a screen of 96 dots an inch and an empty registry.
Process& CurrentProcess();

/// Replaces the default process for the rest of the program, which the new one must outlive. An
/// installed process stays in force whatever the default is.
void DefaultProcess(Process& process);

/// Puts a process in force for as long as this object lives, then the one before it again.
class InstalledProcess {
  public:
    explicit InstalledProcess(Process& process);
    ~InstalledProcess();
    InstalledProcess(const InstalledProcess&) = delete;
    InstalledProcess& operator=(const InstalledProcess&) = delete;

  private:
    Process* before_;
};

} // namespace zorvane
