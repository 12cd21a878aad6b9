#include "model/cmPlate.h"
#include "platetext/LineReader.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"

#include <algorithm>

/// Reading definitions line by line, from an open library file or from a text.
namespace zorvane {

namespace {

/// The one line that is a command to the reader instead of text of a definition.
constexpr std::string_view kResetLine = "ResetParsePlateLine";

constexpr Integer kOtherPlate = 1;
constexpr Integer kIncludeMet = -1;

bool GoesOnAfter(Long code) { return code <= kPlateOpened || code == kUnknownKeyword; }

} // namespace

void cmPlate::BeginReading() {
    Tags.Clear();
    ParsePlateLine(kResetLine);
}

Long cmPlate::ParsePlateLine(std::string_view line) {
    if (line == kResetLine) {
        // The current sub-well and the prefix stay until the next PLATE line.
        status_ = 0;
        Comment.clear();
        reader_.inPlate = false;
        return kApplied;
    }
    try {
        return LineReader(*this).Read(line);
    } catch (const RuntimeError&) {
        return kFailed;
    }
}

// By value: the name may be this object's own, which reading overwrites.
Integer cmPlate::ReadNextPlate(TextFile& file,
                               String name) { // NOLINT(performance-unnecessary-value-param)
    try {
        const Integer result = ReadPlate(file);
        const bool otherName = !name.empty() && !EqualNoCase(name, plateName_);
        return result == 0 && otherName ? kOtherPlate : result;
    } catch (const RuntimeError& error) {
        return static_cast<Integer>(error.Number());
    }
}

Integer cmPlate::ReadPlate(TextFile& file) {
    BeginReading();
    TextFile::FilePosition lineStart = 0;
    Long code = kNothing;
    do {
        lineStart = file.Position();
        file.ReadLine(reader_.line);
        code = ParsePlateLine(Trim(reader_.line));
    } while (!file.AtEnd() && GoesOnAfter(code));

    switch (code) {
    case kPlateComplete: // The line that completed the plate may begin the next one.
        file.Seek(lineStart);
        return 0;
    case kIncludeOutside:
        file.Seek(lineStart);
        return kIncludeMet;
    case kStrayLine:
    case kFailed:
        return static_cast<Integer>(code);
    default:
        return 0;
    }
}

// By value: the text may be one of this object's own, which reading overwrites.
void cmPlate::SetFromText(String text) { // NOLINT(performance-unnecessary-value-param)
    BeginReading();
    // An unknown keyword ends the reading here, though not in a library file.
    ReadLines(text, kPlateOpened);
}

void cmPlate::ReadLines(std::string_view text, Long lastCode) {
    constexpr std::string_view lineEnd = "\r\n";
    Long code = kNothing;
    do {
        const std::size_t end = text.find(lineEnd);
        reader_.line.assign(text.substr(0, end));
        text.remove_prefix(end == text.npos ? text.size() : end + lineEnd.size());
        // Alone, CR and LF end no line here.
        std::replace(reader_.line.begin(), reader_.line.end(), '\r', ' ');
        std::replace(reader_.line.begin(), reader_.line.end(), '\n', ' ');
        code = ParsePlateLine(reader_.line);
    } while (!text.empty() && code <= lastCode);
}

} // namespace zorvane
