#pragma once

#include "Test.h"
#include "control/Plate.h"
#include "platform/memory/MemorySite.h"
#include "runtime/NumberText.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace zorvane {

/// Hears every event and writes each down as a line.
class EventLog : public PlateObserver {
  public:
    void DoubleClick() override { lines.push_back("DoubleClick"); }
    void Click() override { lines.push_back("Click"); }
    void SelectWell(Integer wellNo) override {
        lines.push_back("SelectWell " + std::to_string(wellNo));
    }
    void SelectMultipleWells() override { lines.push_back("SelectMultipleWells"); }
    void MouseDown(Integer button, Integer shift, Single x, Single y) override {
        lines.push_back("MouseDown " + Pointer(button, shift, x, y));
    }
    void MouseUp(Integer button, Integer shift, Single x, Single y) override {
        lines.push_back("MouseUp " + Pointer(button, shift, x, y));
    }
    void DragMove(Integer button, Integer shift, Integer columns, Integer rows) override {
        lines.push_back("DragMove " + Pointer(button, shift, columns, rows));
    }
    void ApplyChanges() override { lines.push_back("ApplyChanges"); }

    /// The lines since the last call, in one.
    String Take() {
        String all;
        for (const String& line : std::exchange(lines, {}))
            all += (all.empty() ? "" : ", ") + line;
        return all;
    }

  protected:
    std::vector<String> lines;

  private:
    static String Pointer(Integer button, Integer shift, Single x, Single y) {
        return std::to_string(button) + " " + std::to_string(shift) + " " + SingleText(x) + " " +
               SingleText(y);
    }
};

/// One control of 6600 by 4800 units on a screen of 15 units a pixel.
class ControlTest : public testing::Test {
  protected:
    ControlTest() { plate.AddObserver(events); }

    /// Loads a definition at exactly 50 units a millimetre.
    void Load(const String& text) {
        plate.FixedSize = false;
        plate.DrawingScale(50);
        plate.PlateClassText(text);
        site.repaints.clear();
    }

    const Surface& Shown() const { return plate.Elements(); }
    const Rect& Rim(std::size_t wellNo) const { return Shown().WellRim[wellNo].box; }
    const Rect& Bottom(std::size_t wellNo) const { return Shown().WellBottom[wellNo].box; }

    /// The number of selected wells as the control counts them, then the wells that are selected.
    String Selected() const {
        String selected = std::to_string(plate.NSelected()) + ":";
        for (Integer i = 0; i < plate.TotalWells(); ++i)
            if (plate.IsSelected(i)) selected += " " + std::to_string(i);
        return selected;
    }

    TestProcess process;
    MemorySite site;
    EventLog events;
    Plate plate{site};
};

inline void PrintTo(const Rect& box, std::ostream* out) {
    *out << "(" << box.left << ", " << box.top << ", " << box.width << " x " << box.height << ")";
}

} // namespace zorvane
