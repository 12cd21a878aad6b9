#pragma once

#include "Raised.h"
#include "TestProcess.h"
#include "control/Plate.h"
#include "platform/memory/MemorySite.h"
#include "runtime/NumberText.h"

#include <gtest/gtest.h>

#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace zorvane {

/// A definition of a grid, in plain numbers: pitch 9 mm, 120 mm by 80 mm. Sub-wells follow as their
/// own lines.
inline String GridText(int rows, int cols, const String& subWells, const String& more = {}) {
    std::ostringstream text;
    text
        << "PLATE Demo\r\nROWS " << rows << "\r\nCOLS " << cols
        << "\r\nROWLABEL A\r\nCOLLABEL 1\r\nXPITCH 9\r\nYPITCH 9\r\nXOVERALL 120\r\nYOVERALL 80\r\n"
           "HEIGHT 14\r\n"
        << more << subWells;
    return text.str();
}

/// A sub-well 5 mm deep and a rim of 1 mm around it.
inline String SubWellText(const String& name, Single x, Single y, Single size) {
    std::ostringstream text;
    text << "WELL " << name << "\r\nXOFFSET " << x << "\r\nYOFFSET " << y << "\r\nWELLSIZEX "
         << size << "\r\nWELLSIZEY " << size << "\r\nRIMWIDTH 1\r\nRIMHEIGHT 1\r\nDEPTH 5\r\n";
    return text.str();
}

/// One sub-well; at 50 units a millimetre wells are 450 units apart, from (500, 500) on, and their
/// rims 390 units wide.
inline String OneDrop(int rows = 8, int cols = 12) {
    return GridText(rows, cols, SubWellText("Drop1", 10, 10, 6));
}

/// A large reservoir and, on it, a drop beside its centre; the drop is the first sub-well.
inline String DropOnReservoir(int rows = 8, int cols = 12) {
    return GridText(rows, cols,
                    SubWellText("Drop1", 8, 8, 1) + SubWellText("Reservoir", 10, 10, 6));
}

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

  private:
    std::vector<String> lines;
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
