#include "platecheck/LibraryCheck.h"

#include "platecheck/LibraryChecker.h"
#include "runtime/TextFile.h"

namespace zorvane {

namespace {

std::vector<Finding> Check(TextFile& file, const String& name, Standards standards) {
    LibraryChecker checker(name, standards);
    String line;
    while (!file.AtEnd()) {
        file.ReadLine(line);
        checker.Read(line);
    }
    return std::move(checker).Finish();
}

} // namespace

std::vector<Finding> CheckLibrary(const String& fileName, Standards standards) {
    TextFile file;
    file.OpenInput(fileName);
    return Check(file, fileName, standards);
}

std::vector<Finding> CheckLibraryText(const String& text, const String& name, Standards standards) {
    TextFile file;
    file.OpenText(text);
    return Check(file, name, standards);
}

} // namespace zorvane
