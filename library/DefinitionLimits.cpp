#include "library/DefinitionLimits.h"

#include "library/TextLines.h"
#include "platetext/LineParts.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"

#include <cstddef>

namespace zorvane {

namespace {

constexpr std::size_t kMostBytes = std::size_t{1} << 24;

/// What has been read of one plate.
struct Growth {
    std::size_t bytes = 0;
    std::size_t tags = 0;         ///< bytes of the tags so far
    std::size_t recordedTags = 0; ///< of all records of them
    bool newTags = false;

    void Add(const TextLine& line) {
        bytes += line.text.size() + line.end.size();
        const std::size_t word = line.text.find_first_not_of(" \t");
        // Most lines are of neither kind, and this runs over every library.
        if (word == line.text.npos || !IsTagOrWell(line.text[word])) return;
        const LineParts parts(line.text);
        if (EqualNoCase(parts.keyword, "TAG") || EqualNoCase(parts.keyword, "TAGLIST")) {
            tags += parts.argument.size() + 1;
            newTags = true;
        } else if (newTags && EqualNoCase(parts.keyword, "WELL")) {
            recordedTags += tags;
            newTags = false;
        }
    }

    static bool IsTagOrWell(char c) { return c == 'T' || c == 't' || c == 'W' || c == 'w'; }
};

bool OpensPlate(std::string_view line) {
    line = TrimStart(line);
    return StartsWithNoCase(line, "PLATE") && EqualNoCase(LineParts(line).keyword, "PLATE");
}

} // namespace

void CheckDefinitionSizes(std::string_view library) {
    Growth plate;
    Long number = 0;
    while (!library.empty()) {
        const TextLine line = TakeLine(library);
        ++number;
        if (OpensPlate(line.text)) plate = {};
        plate.Add(line);
        if (plate.bytes > kMostBytes || plate.recordedTags > kMostBytes) {
            Raise(ErrorNumber::Overflow,
                  "line " + std::to_string(number) + ": the plate is too large to be read: its " +
                      (plate.bytes > kMostBytes ? "definition has"
                                                : "tags, repeated in sub-wells, have") +
                      " more than 16 MB");
        }
    }
}

} // namespace zorvane
