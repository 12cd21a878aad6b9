#include "platform/memory/MemoryProcess.h"

namespace zorvane {

void MemoryMessages::Show(const Message& message) {
    shown.push_back(message);
    if (!expected_.empty() && expected_.front() == message.prompt) {
        expected_.erase(expected_.begin());
    } else if (onUnexpected) {
        onUnexpected(message);
    }
}

} // namespace zorvane
