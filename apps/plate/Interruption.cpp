#include "apps/plate/Interruption.h"

#include "library/disk/TemporaryNames.h"

#include <csignal>

namespace zorvane {

namespace {

void EndBySignal(int signal) {
    TemporaryFile::RemoveAll();
    ::raise(signal); // handled as by default now; the shell sees what ended the program
}

} // namespace

void RemoveTemporariesOnSignals() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction action = {};
        action.sa_handler = EndBySignal;
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        struct sigaction before = {};
        ::sigaction(signal, nullptr, &before);
        // One that is ignored, as under nohup, stays ignored.
        if (before.sa_handler != SIG_IGN) ::sigaction(signal, &action, nullptr);
    }
}

} // namespace zorvane
