#pragma once

#include "control/PlateObserver.h"

#include <cstddef>
#include <vector>

namespace zorvane {

/// The observers of one control, in the order added. They may be added and removed at any time,
/// also while an event is being raised: one removed hears nothing more, one added hears the next
/// event.
class PlateEvents {
  public:
    void Add(PlateObserver& observer);
    void Remove(PlateObserver& observer) noexcept;

    /// Calls `event` on every observer.
    template <class Event>
    void Raise(Event event) {
        if (observers_.empty()) return;
        const Raising raising(*this);
        const std::size_t present = observers_.size();
        for (std::size_t i = 0; i < present; ++i)
            if (observers_[i]) event(*observers_[i]);
    }

  private:
    // While events are being raised a removal leaves a gap, so that positions stay; the outermost
    // closes the gaps.
    class Raising {
      public:
        explicit Raising(PlateEvents& events) : events_(events) { ++events_.depth_; }
        ~Raising();
        Raising(const Raising&) = delete;
        Raising& operator=(const Raising&) = delete;

      private:
        PlateEvents& events_;
    };

    std::vector<PlateObserver*> observers_;
    int depth_ = 0;
};

} // namespace zorvane
