#pragma once

#include "control/PlateObserver.h"
#include "runtime/NumberText.h"

#include <utility>
#include <vector>

namespace zorvane {

/// Writes the events of a control down: "MouseDown 1 0 500 510".
class EventLog : public PlateObserver {
  public:
    void DoubleClick() override { Add("DoubleClick"); }
    void Click() override { Add("Click"); }
    void SelectWell(Integer wellNo) override { Add("SelectWell", wellNo); }
    void SelectMultipleWells() override { Add("SelectMultipleWells"); }
    void MouseDown(Integer button, Integer shift, Single x, Single y) override {
        Add("MouseDown", button, shift, x, y);
    }
    void MouseUp(Integer button, Integer shift, Single x, Single y) override {
        Add("MouseUp", button, shift, x, y);
    }
    void DragMove(Integer button, Integer shift, Integer columns, Integer rows) override {
        Add("DragMove", button, shift, columns, rows);
    }
    void ApplyChanges() override { Add("ApplyChanges"); }

    /// The events since the last call, in their order.
    String Take(const char* between = ", ") {
        String all;
        for (const String& event : std::exchange(events_, {}))
            all += (all.empty() ? "" : between) + event;
        return all;
    }

  protected:
    template <class... Numbers>
    void Add(String event, Numbers... numbers) {
        ((event += " " + SingleText(static_cast<Single>(numbers))), ...);
        events_.push_back(std::move(event));
    }

  private:
    std::vector<String> events_;
};

} // namespace zorvane
