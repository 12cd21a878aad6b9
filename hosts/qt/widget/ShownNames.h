#pragma once

#include "control/WellNames.h"

#include <optional>

namespace zorvane {

/// The names of the wells that a control shows, read again after each layout.
class ShownNames final : public PlateObserver {
  public:
    explicit ShownNames(Plate& plate) : plate_(plate) { plate_.AddObserver(*this); }
    ~ShownNames() override { plate_.RemoveObserver(*this); }
    ShownNames(const ShownNames&) = delete;
    ShownNames& operator=(const ShownNames&) = delete;

    const WellNames& Get() {
        if (!names_) names_.emplace(plate_);
        return *names_;
    }

    void PlateChanged() override { names_.reset(); }

  private:
    Plate& plate_;
    std::optional<WellNames> names_;
};

} // namespace zorvane
