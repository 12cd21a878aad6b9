#include "library/LibraryText.h"

#include "library/TextLines.h"
#include "model/cmPlate.h"
#include "platetext/LineParts.h"
#include "platetext/ReadResult.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"

#include <algorithm>
#include <utility>

namespace zorvane {

namespace {

[[noreturn]] void Fail(const String& description) {
    Raise(ErrorNumber::EditNotPossible, description);
}

bool IsBlankOrComment(std::string_view line) { return Trim(line).empty() || IsCommentLine(line); }

bool OpensPlate(std::string_view line) { return EqualNoCase(LineParts(line).keyword, "PLATE"); }

/// Where a plate lies in the lines that were read for it, which begin at `from` in the library.
PlateBlock BlockIn(std::string_view read, std::size_t from) {
    PlateBlock block;
    block.readTo = from + read.size();
    std::size_t at = from;
    bool inPlate = false;
    for (const TextLine& line : LinesOf(read)) {
        if (!inPlate) block.begin = at;
        at += line.text.size() + line.end.size();
        inPlate = inPlate || OpensPlate(line.text);
        if (!IsBlankOrComment(line.text)) block.end = at;
    }
    return block;
}

/// Why the reader stops at a line, by what it answers.
String StopReason(Integer code) {
    switch (code) {
    case kOtherPlateRead:
    case kPlateRead:
        return {};
    case kStoppedAtInclude:
        return "an INCLUDE line";
    case kStoppedAtFailedLine:
        return "a line that cannot be taken as written";
    default:
        return "a line outside any plate";
    }
}

} // namespace

std::optional<PlateBlock> LibraryText::Find(const String& name) const {
    if (name.empty()) return std::nullopt;
    TextFile file;
    file.OpenText(bytes_);
    while (!file.AtEnd()) {
        cmPlate plate;
        const auto from = static_cast<std::size_t>(file.Position());
        const Integer result = plate.ReadNextPlate(file, name);
        if (result == kPlateRead) {
            const auto to = static_cast<std::size_t>(file.Position());
            PlateBlock block = BlockIn(std::string_view(bytes_).substr(from, to - from), from);
            block.name = plate.PlateName();
            block.definition = plate.Text();
            // The reader gathers comments in their order, so those of the block come first.
            const std::size_t own = PlateIn(String(Of(block))).Comment.size();
            block.commentsAfter = CommentLines(std::string_view(plate.Comment).substr(own));
            return block;
        }
        if (result != kOtherPlateRead) return std::nullopt;
    }
    return std::nullopt;
}

String LibraryText::WhyNotFound(const String& name) const {
    String reason = "the library has no plate \"" + name + "\"";
    if (bytes_.substr(0, 3) == "\xEF\xBB\xBF")
        return reason + " that can be found, because it begins with a byte order mark";
    TextFile file;
    file.OpenText(bytes_);
    Integer result = kOtherPlateRead;
    while (!file.AtEnd() && (result == kOtherPlateRead || result == kPlateRead))
        result = cmPlate().ReadNextPlate(file);
    const String stop = StopReason(result);
    if (stop.empty()) return reason;
    return reason + " that can be found, because " + stop + " ends every search of it";
}

PlateBlock LibraryText::Get(const String& name) const {
    auto block = Find(name);
    if (!block) Fail(WhyNotFound(name));
    return *std::move(block);
}

cmPlate LibraryText::LookedUp(const String& name) const {
    TextFile file;
    file.OpenText(bytes_);
    cmPlate plate;
    Integer result = name.empty() ? kPlateRead : kOtherPlateRead;
    while (result == kOtherPlateRead && !file.AtEnd())
        result = plate.ReadNextPlate(file, name);
    if (result != kPlateRead || name.empty()) Fail(WhyNotFound(name));
    return plate;
}

cmPlate LibraryText::PlateOf(const PlateBlock& block) const {
    return PlateIn(bytes_.substr(block.begin));
}

std::string_view LibraryText::Of(const PlateBlock& block) const {
    return std::string_view(bytes_).substr(block.begin, block.end - block.begin);
}

/// The first line end in a part of the library, or else in all of it; CR LF where there is none.
std::string_view LibraryText::LineEndAt(std::size_t begin, std::size_t end) const {
    for (const std::string_view part :
         {std::string_view(bytes_).substr(begin, end - begin), std::string_view(bytes_)}) {
        const std::size_t at = part.find_first_of("\r\n");
        if (at != part.npos) return part.substr(at, part.substr(at, 2) == "\r\n" ? 2 : 1);
    }
    return "\r\n";
}

/// A definition in the line ends of the library.
String LibraryText::Fitted(std::string_view definition, std::string_view lineEnd) const {
    String text;
    for (const TextLine& line : LinesOf(TrimEnd(definition)))
        text.append(line.text).append(lineEnd);
    return text;
}

LibraryText LibraryText::WithReplaced(const String& definition) const {
    const PlateBlock old = Get(NameIn(definition));
    String text =
        Fitted(WithoutCommentsAfter(WithoutEchoes(definition), old), LineEndAt(old.begin, old.end));
    const bool unended = Of(old).find_last_of("\r\n") + 1 != Of(old).size();
    if (unended) text = TrimEnd(text);

    const std::size_t oldSize = old.end - old.begin;
    LibraryText result(String(bytes_).replace(old.begin, oldSize, text));
    const auto now = result.Find(old.name);
    if (!now || now->begin != old.begin || now->readTo + oldSize != old.readTo + text.size())
        Fail("the definition of \"" + old.name + "\" could not be read back");
    return result;
}

LibraryText LibraryText::WithAppended(const String& definition) const {
    const String name = NameIn(definition);
    if (const auto other = Find(name))
        Fail("the library has a plate \"" + other->name + "\" already");
    const std::string_view lineEnd = LineEndAt(0, 0);
    String text = bytes_;
    const std::vector<TextLine> lines = LinesOf(bytes_);
    if (!lines.empty() && lines.back().end.empty()) text.append(lineEnd);
    if (!lines.empty() && !Trim(lines.back().text).empty()) text.append(lineEnd);
    const std::size_t begin = text.size();
    LibraryText result(text.append(Fitted(WithoutEchoes(definition), lineEnd)));
    const auto now = result.Find(name);
    if (!now) Fail(result.WhyNotFound(name));
    if (now->begin != begin || now->readTo != result.bytes_.size())
        Fail("the definition of \"" + name + "\" could not be read back");
    return result;
}

} // namespace zorvane
