#include "platecheck/LibraryCheck.h"

#include "platecheck/LibraryChecker.h"
#include "runtime/TextFile.h"

namespace zorvane {

std::vector<Finding> CheckLibrary(const String& fileName) {
    TextFile file;
    file.OpenInput(fileName);
    LibraryChecker checker(fileName);
    String line;
    while (!file.AtEnd()) {
        file.ReadLine(line);
        checker.Read(line);
    }
    return std::move(checker).Finish();
}

} // namespace zorvane
