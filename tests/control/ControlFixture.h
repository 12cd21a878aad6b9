#pragma once

#include "Test.h"
#include "behaviour/EventLog.h"
#include "control/Plate.h"
#include "platform/memory/MemorySite.h"

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

namespace zorvane {

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

    TestProcess process;
    MemorySite site;
    EventLog events;
    Plate plate{site};
};

inline void PrintTo(const Rect& box, std::ostream* out) {
    *out << "(" << box.left << ", " << box.top << ", " << box.width << " x " << box.height << ")";
}

} // namespace zorvane
