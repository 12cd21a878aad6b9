#include "model/cmPlate.h"
#include "platetext/LineReader.h"
#include "platetext/ReadResult.h"
#include "platform/Process.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"

#include <algorithm>

/// Reading definitions line by line, from a library file or from a text.
namespace zorvane {

namespace {

/// The one line that is a command to the reader instead of text of a definition.
constexpr std::string_view kResetLine = "ResetParsePlateLine";

bool GoesOnAfter(LineCode code) {
    return code <= LineCode::PlateOpened || code == LineCode::UnknownKeyword;
}

/// Reads plates until one has the name; false when the reading stops before.
bool ReadUntilFound(cmPlate& plate, TextFile& file, const String& plateName) {
    for (;;) {
        const Integer result = plate.ReadNextPlate(file, plateName);
        if (result == kPlateRead) return true;
        if (result != kOtherPlateRead || file.AtEnd()) return false;
    }
}

} // namespace

void cmPlate::BeginReading() {
    Tags.Clear();
    ReadLine(kResetLine);
}

LineCode cmPlate::ReadLine(std::string_view line) {
    const LineCode code = ApplyLine(line);
    RecordTags();
    return code;
}

void cmPlate::RecordTags() {
    if (!reader_.tagsToRecord) return;
    SetProperty(reader_.prefix + String(TraitsOf(Keyword::TagList).name), TagListText());
    reader_.tagsToRecord = false;
}

LineCode cmPlate::ApplyLine(std::string_view line) {
    if (line == kResetLine) {
        // The current sub-well and the prefix stay until the next PLATE line.
        status_ = 0;
        Comment.clear();
        reader_.inPlate = false;
        return LineCode::Applied;
    }
    try {
        return LineReader(*this).Read(line);
    } catch (const RuntimeError&) {
        return LineCode::Failed;
    }
}

// By value: the name may be this object's own, which reading overwrites.
Integer cmPlate::ReadNextPlate(TextFile& file,
                               String name) { // NOLINT(performance-unnecessary-value-param)
    Integer result = kPlateRead;
    try {
        result = ReadPlate(file);
    } catch (const RuntimeError& error) {
        result = static_cast<Integer>(error.Number());
    }
    RecordTags();
    const bool otherName = !name.empty() && !EqualNoCase(name, plateName_);
    if (result == kPlateRead && otherName) return kOtherPlateRead;
    return result;
}

Integer cmPlate::ReadPlate(TextFile& file) {
    BeginReading();
    TextFile::FilePosition lineStart = 0;
    LineCode code = LineCode::Empty;
    do {
        lineStart = file.Position();
        file.ReadLine(reader_.line);
        code = ApplyLine(Trim(reader_.line));
    } while (!file.AtEnd() && GoesOnAfter(code));

    switch (code) {
    case LineCode::PlateComplete: // The line that completed the plate may begin the next one.
        file.Seek(lineStart);
        return kPlateRead;
    case LineCode::IncludeOutside:
        file.Seek(lineStart);
        return kStoppedAtInclude;
    case LineCode::StrayLine:
        return kStoppedAtStrayLine;
    case LineCode::Failed:
        return kStoppedAtFailedLine;
    default:
        return kPlateRead;
    }
}

// By value: the text may be one of this object's own, which reading overwrites.
void cmPlate::SetFromText(String text) { // NOLINT(performance-unnecessary-value-param)
    BeginReading();
    // An unknown keyword ends the reading here, though not in a library file.
    ReadLines(text, LineCode::PlateOpened);
}

void cmPlate::ReadLines(std::string_view text, LineCode lastCode) {
    constexpr std::string_view lineEnd = "\r\n";
    LineCode code = LineCode::Empty;
    do {
        const std::size_t end = text.find(lineEnd);
        reader_.line.assign(text.substr(0, end));
        text.remove_prefix(end == text.npos ? text.size() : end + lineEnd.size());
        // Alone, CR and LF end no line here.
        std::replace(reader_.line.begin(), reader_.line.end(), '\r', ' ');
        std::replace(reader_.line.begin(), reader_.line.end(), '\n', ' ');
        code = ApplyLine(reader_.line);
    } while (!text.empty() && code <= lastCode);
    RecordTags();
}

// By value: the name may be this object's own, which reading overwrites.
Boolean cmPlate::SetPlate(const String& fileName,
                          String plateName) { // NOLINT(performance-unnecessary-value-param)
    if (plateName.empty() || fileName.empty()) return false;
    String failure = "Can't find Plate <" + plateName + "> in " + fileName;
    try {
        TextFile file;
        file.OpenInput(fileName);
        if (ReadUntilFound(*this, file, plateName)) return true;
    } catch (const RuntimeError&) {
        failure = "Error trying to read \"" + plateName + "\" from <" + fileName + ">";
    }
    CurrentMessages().Show({failure});
    return false;
}

} // namespace zorvane
