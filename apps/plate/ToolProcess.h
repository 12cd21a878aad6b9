#pragma once

#include "platform/Process.h"
#include "platform/sqlite/SqliteRegistry.h"
#include "runtime/Text.h"

#include <iostream>

namespace zorvane {

/// The surroundings of a command-line tool: messages go to standard error, the registry is kept in
/// files and the screen has 96 dots an inch.
class ToolProcess final : public Process {
  public:
    MessageDisplay& Messages() override { return messages_; }
    Screen& TheScreen() override { return screen_; }
    Registry& TheRegistry() override { return registry_; }

  private:
    struct StandardError final : MessageDisplay {
        void Show(const Message& message) override {
            std::cerr << "plate: " << PrintableUtf8(message.prompt) << "\n";
        }
    };

    StandardError messages_;
    Screen screen_;
    SqliteRegistry registry_;
};

} // namespace zorvane
