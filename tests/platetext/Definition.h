#pragma once

#include "Test.h"

namespace zorvane {

inline String Lines(std::initializer_list<std::string_view> lines) { return DefinitionOf(lines); }

/// Two plates, the first with every kind of line.
inline String DemoLibrary() {
    return "; crystallisation plates\r\nPLATE Demo96 ; two-drop vapour-diffusion plate\r\n"
           "TAGLIST hanging vapour ; tags\r\n" +
           Lines({"ROWS 8",        "COLS 12",         "ROWLABEL A",       "COLLABEL 1",
                  "XPITCH 9.000",  "YPITCH 9.000",    "XOVERALL 127.76",  "YOVERALL 85.48",
                  "HEIGHT 14.35",  "SHELFDEPTH -0.5", "WELL Reservoir",   "STYLE SQUARE",
                  "WELLSIZEX 4.0", "WELLSIZEY 4.0",   "DEPTH 8.0",        "VOLUME 100",
                  "WELL Drop1",    "STYLE ROUND",     "WELLDIAMETER 2.5", "XOFFSET -2.2",
                  "YOFFSET 2.0",   "RIMWIDTH 0.5",    "PLATE Next96"});
}

} // namespace zorvane
