#pragma once

#include "platform/Process.h"
#include "platform/memory/MemoryProcess.h"

#include <gtest/gtest.h>

namespace zorvane {

/// Puts an in-memory process in force for one test. A message box that the test did not announce
/// fails it, and so does an announced one that was not shown.
struct TestProcess : MemoryProcess {
    TestProcess() {
        messages.onUnexpected = [](const Message& message) {
            ADD_FAILURE() << "unexpected message box: " << message.title << ": " << message.prompt;
        };
    }
    ~TestProcess() override { EXPECT_EQ(messages.Outstanding(), 0U); }

  private:
    InstalledProcess installed_{*this};
};

} // namespace zorvane
