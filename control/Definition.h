#pragma once

#include "model/cmPlate.h"
#include "runtime/RuntimeError.h"
#include "runtime/Types.h"

#include <memory>
#include <utility>

namespace zorvane {

/// The plate definition that a control shows. Every load brings another object; using it before the
/// first fails with error 91.
class Definition {
  public:
    cmPlate& operator*() const {
        if (!plate_) Raise(ErrorNumber::ObjectNotSet);
        return *plate_;
    }
    cmPlate* operator->() const { return &**this; }

    void Replace(std::unique_ptr<cmPlate> plate) { plate_ = std::move(plate); }

    /// Sub-wells were edited since the last layout; the drawing no longer agrees with them.
    Boolean SubWellsEdited() const { return subWellsEdited_; }
    void SubWellsEdited(Boolean value) { subWellsEdited_ = value; }

  private:
    std::unique_ptr<cmPlate> plate_;
    Boolean subWellsEdited_ = false;
};

} // namespace zorvane
