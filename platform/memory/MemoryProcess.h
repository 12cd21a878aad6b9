#pragma once

#include "platform/Process.h"
#include "platform/memory/MemoryRegistry.h"
#include "runtime/Export.h"

#include <functional>
#include <vector>

namespace zorvane {

/// Message boxes kept in memory. A message that nobody expected is handed to `onUnexpected`, which
/// a test sets to fail.
class ZORVANE_EXPORT MemoryMessages final : public MessageDisplay {
  public:
    void Show(const Message& message) override;

    /// Announces that the next not yet announced message will have this prompt.
    void Expect(const String& prompt) { expected_.push_back(prompt); }

    std::vector<Message> shown;
    std::function<void(const Message&)> onUnexpected;

    /// How many announced messages have not been shown.
    std::size_t Outstanding() const { return expected_.size(); }

  private:
    std::vector<String> expected_;
};

/// A screen of any pixel size.
class MemoryScreen final : public Screen {
  public:
    Single TwipsPerPixelX() const override { return twipsPerPixelX; }
    Single TwipsPerPixelY() const override { return twipsPerPixelY; }

    Single twipsPerPixelX = 15;
    Single twipsPerPixelY = 15;
};

/// A process without a desktop, for tests and headless programs.
class MemoryProcess : public Process {
  public:
    MessageDisplay& Messages() override { return messages; }
    Screen& TheScreen() override { return screen; }
    Registry& TheRegistry() override { return registry; }

    MemoryMessages messages;
    MemoryScreen screen;
    MemoryRegistry registry;
};

} // namespace zorvane
