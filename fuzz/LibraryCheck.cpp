#include "platecheck/LibraryCheck.h"
#include "InputFile.h"

#include <cstdlib>

using namespace zorvane;

// Any bytes can be checked, and what is found can be shown and lies in the file, line after line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Long line = 1;
    for (const Finding& finding : CheckLibrary(InputFile("LibraryCheck", data, size))) {
        if (finding.line < line || finding.column < 1 || finding.length < 1) std::abort();
        line = finding.line;
        FindingText(finding);
    }
    return 0;
}
