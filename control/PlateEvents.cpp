#include "control/PlateEvents.h"

#include <algorithm>

namespace zorvane {

void PlateEvents::Add(PlateObserver& observer) { observers_.push_back(&observer); }

void PlateEvents::Remove(PlateObserver& observer) noexcept {
    for (PlateObserver*& each : observers_)
        if (each == &observer) each = nullptr;
    if (depth_ == 0) std::erase(observers_, nullptr);
}

PlateEvents::Raising::~Raising() {
    if (--events_.depth_ == 0) std::erase(events_.observers_, nullptr);
}

} // namespace zorvane
