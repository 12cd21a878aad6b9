#pragma once

#include "behaviour/HostDriver.h"

#include <map>
#include <vector>

namespace zorvane {

/// Writes the events of a control down, a line for each.
class EventLog final : public PlateObserver {
  public:
    void DoubleClick() override;
    void Click() override;
    void SelectWell(Integer wellNo) override;
    void SelectMultipleWells() override;
    void MouseDown(Integer button, Integer shift, Single x, Single y) override;
    void MouseUp(Integer button, Integer shift, Single x, Single y) override;
    void DragMove(Integer button, Integer shift, Integer columns, Integer rows) override;
    void ApplyChanges() override;

    /// The lines since the last call.
    String Take();

  private:
    String lines_;
};

/// The text with " | " for its line breaks.
String OnOneLine(String text);

/// Everything that a control and its window show, by name.
std::map<String, String> SnapshotOf(HostDriver& host);

} // namespace zorvane
