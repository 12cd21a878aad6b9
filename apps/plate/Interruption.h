#pragma once

namespace zorvane {

/// Makes the signals that end a program, such as Ctrl-C, remove its temporary files first.
void RemoveTemporariesOnSignals();

} // namespace zorvane
