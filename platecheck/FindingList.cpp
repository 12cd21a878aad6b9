#include "platecheck/FindingList.h"

#include "runtime/Text.h"

#include <algorithm>
#include <tuple>

namespace zorvane {

namespace {

constexpr std::size_t kMostShown = 40;  // bytes of a text inside a message
constexpr std::size_t kMostBefore = 60; // bytes of a line in front of the part
constexpr std::size_t kMostAfter = 60;  // and from its start on
constexpr std::string_view kCut = "...";

bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

/// The nearest position at or after `at` that does not split a character of valid UTF-8.
std::size_t CharacterStart(std::string_view text, std::size_t at) {
    for (int i = 0; i < 3 && at < text.size() && IsContinuation(text[at]); ++i)
        ++at;
    return std::min(at, text.size());
}

/// Printable characters of width one each, so that a caret below them meets its mark.
String OneLine(std::string_view text) {
    String line = PrintableUtf8(text);
    std::replace(line.begin(), line.end(), '\t', ' ');
    return line;
}

} // namespace

String Shown(std::string_view text) {
    if (text.size() <= kMostShown) return OneLine(text);
    return OneLine(text.substr(0, CharacterStart(text, kMostShown))).append(kCut);
}

void FindingList::Add(Severity severity, const SourceLine& line, std::string_view part,
                      String message) {
    const std::string_view text = line.text;
    const auto start = static_cast<std::size_t>(part.data() - text.data());
    const std::size_t from = start > kMostBefore ? CharacterStart(text, start - kMostBefore) : 0;
    const std::size_t to = CharacterStart(text, std::min(text.size(), start + kMostAfter));
    const String before =
        (from > 0 ? String(kCut) : String()) + OneLine(text.substr(from, start - from));

    Finding finding;
    finding.file = file_;
    finding.line = line.number;
    finding.column = CharacterCount(text.substr(0, start)) + 1;
    finding.length = std::max(1, CharacterCount(part));
    finding.severity = severity;
    finding.message = std::move(message);
    finding.lineText = before + OneLine(text.substr(start, to - start));
    if (to < text.size()) finding.lineText += kCut;
    finding.caret = CharacterCount(before);
    findings_.push_back(std::move(finding));
}

std::vector<Finding> FindingList::Sorted() && {
    std::stable_sort(findings_.begin(), findings_.end(), [](const Finding& a, const Finding& b) {
        return std::tie(a.line, a.column) < std::tie(b.line, b.column);
    });
    return std::move(findings_);
}

String SeverityText(Severity severity) { return severity == Severity::Error ? "error" : "warning"; }

String FindingText(const Finding& finding) {
    const String severity = SeverityText(finding.severity);
    const Long shown = CharacterCount(finding.lineText) - finding.caret;
    const Long tail = std::max(0, std::min(finding.length, shown) - 1);
    return OneLine(finding.file) + ":" + std::to_string(finding.line) + ":" +
           std::to_string(finding.column) + ": " + severity + ": " + finding.message + "\n    " +
           finding.lineText + "\n    " + String(static_cast<std::size_t>(finding.caret), ' ') +
           "^" + String(static_cast<std::size_t>(tail), '~') + "\n";
}

} // namespace zorvane
