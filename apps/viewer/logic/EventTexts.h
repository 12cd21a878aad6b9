#pragma once

#include "control/Plate.h"
#include "control/PlateObserver.h"
#include "runtime/Types.h"

#include <functional>
#include <utility>

namespace zorvane::viewer {

/// Writes each event of a control as one line: its name and its arguments. Observes the control for
/// as long as it lives.
class EventTexts final : public PlateObserver {
  public:
    /// `nameOf` gives the name of a well for people.
    EventTexts(Plate& plate, std::function<void(const String&)> onText,
               std::function<String(Integer)> nameOf)
        : plate_(plate), onText_(std::move(onText)), nameOf_(std::move(nameOf)) {
        plate_.AddObserver(*this);
    }
    ~EventTexts() override { plate_.RemoveObserver(*this); }
    EventTexts(const EventTexts&) = delete;
    EventTexts& operator=(const EventTexts&) = delete;

    void DoubleClick() override;
    void Click() override;
    void SelectWell(Integer wellNo) override;
    void SelectMultipleWells() override;
    void MouseDown(Integer button, Integer shift, Single x, Single y) override;
    void MouseUp(Integer button, Integer shift, Single x, Single y) override;
    void DragMove(Integer button, Integer shift, Integer columns, Integer rows) override;
    void ApplyChanges() override;

  private:
    Plate& plate_;
    std::function<void(const String&)> onText_;
    std::function<String(Integer)> nameOf_;
};

} // namespace zorvane::viewer
