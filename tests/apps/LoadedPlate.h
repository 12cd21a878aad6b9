#pragma once

#include "Test.h"
#include "control/Plate.h"
#include "platform/memory/MemorySite.h"

#include <string>

namespace zorvane {

/// The definition of a plate with sub-wells Drop1 and Reservoir in each position.
inline String TwoSubWells(int rows, int cols, const String& rowLabel = "A",
                          const String& columnLabel = "1") {
    return "PLATE Test\r\nROWS " + std::to_string(rows) + "\r\nCOLS " + std::to_string(cols) +
           "\r\nROWLABEL " + rowLabel + "\r\nCOLLABEL " + columnLabel +
           "\r\nXPITCH 3\r\nYPITCH 3\r\nXOVERALL 127\r\nYOVERALL 85\r\nHEIGHT 14\r\n"
           "WELL Drop1\r\nSTYLE ROUND\r\nXOFFSET 12\r\nYOFFSET 11\r\nWELLSIZEX 1\r\nWELLSIZEY 1\r\n"
           "DEPTH 2\r\nVOLUME 4\r\n"
           "WELL Reservoir\r\nSTYLE SQUARE\r\nXOFFSET 13.3\r\nYOFFSET 11\r\nWELLSIZEX 1\r\n"
           "WELLSIZEY 1\r\nDEPTH 9\r\nVOLUME 60\r\n";
}

/// A control without a window that shows a plate and takes several selected wells.
struct LoadedPlate {
    explicit LoadedPlate(const String& definition = TwoSubWells(4, 6)) {
        plate.PlateClassText(definition);
        plate.WellIndex(1);
        plate.MultipleSelect = true;
        plate.DefinedWellColor = 0x00FF00;
        plate.ErrorWellColor = 0x0000FF;
    }

    TestProcess process;
    MemorySite site{12000, 8000};
    Plate plate{site};
};

} // namespace zorvane
