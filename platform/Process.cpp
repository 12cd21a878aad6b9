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

Process*& InForce() {
    static PlainProcess plain;
    static Process* inForce = &plain;
    return inForce;
}

} // namespace

Process& CurrentProcess() { return *InForce(); }

InstalledProcess::InstalledProcess(Process& process) : before_(InForce()) { InForce() = &process; }

InstalledProcess::~InstalledProcess() { InForce() = before_; }

} // namespace zorvane
