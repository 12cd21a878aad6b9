#pragma once

#include "control/PlateObserver.h"
#include "runtime/Types.h"

#include <functional>
#include <utility>

namespace zorvane {

/// Writes each event of a control as one line: its name and its arguments.
class EventTexts final : public PlateObserver {
  public:
    /// `nameOf` gives the name of a well for people.
    EventTexts(std::function<void(const String&)> onText, std::function<String(Integer)> nameOf)
        : onText_(std::move(onText)), nameOf_(std::move(nameOf)) {}

    void DoubleClick() override;
    void Click() override;
    void SelectWell(Integer wellNo) override;
    void SelectMultipleWells() override;
    void MouseDown(Integer button, Integer shift, Single x, Single y) override;
    void MouseUp(Integer button, Integer shift, Single x, Single y) override;
    void DragMove(Integer button, Integer shift, Integer columns, Integer rows) override;
    void ApplyChanges() override;

  private:
    std::function<void(const String&)> onText_;
    std::function<String(Integer)> nameOf_;
};

} // namespace zorvane
