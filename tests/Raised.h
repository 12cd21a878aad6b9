#pragma once

#include "runtime/RuntimeError.h"

#include <utility>

namespace zorvane {

/// The number of the run-time error that an action raises; 0 when it raises none.
template <class Action>
Long NumberRaisedBy(Action&& action) {
    try {
        std::forward<Action>(action)();
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return 0;
}

} // namespace zorvane
