#include "platecheck/LibraryCheck.h"

#include "platecheck/LibraryChecker.h"
#include "runtime/TextFile.h"

namespace zorvane {

namespace {

std::vector<Finding> Check(TextFile& file, const String& name) {
    LibraryChecker checker(name);
    String line;
    while (!file.AtEnd()) {
        file.ReadLine(line);
        checker.Read(line);
    }
    return std::move(checker).Finish();
}

} // namespace

std::vector<Finding> CheckLibrary(const String& fileName) {
    TextFile file;
    file.OpenInput(fileName);
    return Check(file, fileName);
}

std::vector<Finding> CheckLibraryText(const String& text, const String& name) {
    TextFile file;
    file.OpenText(text);
    return Check(file, name);
}

} // namespace zorvane
