#include "platform/Process.h"

#include <iostream>

namespace zorvane {

namespace {

class StandardErrorMessages final : public MessageDisplay {
  public:
    void Show(const Message& message) override {
        std::cerr << message.title << ": " << message.prompt << std::endl;
    }
};

class PlainProcess final : public Process {
  public:
    MessageDisplay& Messages() override { return messages_; }
    Screen& TheScreen() override { return screen_; }
    Registry& TheRegistry() override { return registry_; }

  private:
    StandardErrorMessages messages_;
    Screen screen_;
    Registry registry_;
};

Process*& Default() {
    static PlainProcess plain;
    static Process* process = &plain;
    return process;
}

Process* installed = nullptr;
thread_local MessageDisplay* taking = nullptr;

} // namespace

Process& CurrentProcess() { return installed ? *installed : *Default(); }

MessageDisplay& CurrentMessages() { return taking ? *taking : CurrentProcess().Messages(); }

void DefaultProcess(Process& process) { Default() = &process; }

InstalledProcess::InstalledProcess(Process& process) : before_(installed) { installed = &process; }

InstalledProcess::~InstalledProcess() { installed = before_; }

TakenMessages::TakenMessages(MessageDisplay& display) : before_(taking) { taking = &display; }

TakenMessages::~TakenMessages() { taking = before_; }

} // namespace zorvane
