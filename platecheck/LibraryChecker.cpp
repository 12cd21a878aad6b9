#include "platecheck/LibraryChecker.h"

#include "platecheck/SlasCheck.h"
#include "runtime/Text.h"

#include <utility>

namespace zorvane {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

String PlateCount(Long count) {
    return count == 1 ? "the plate" : "the " + std::to_string(count) + " plates";
}

} // namespace

LineCode LibraryChecker::Feed() {
    // Nothing is asked of the tags, and their list would be written again with each line.
    plate_.Tags.Clear();
    return plate_.ReadLine(Trim(line_.text));
}

void LibraryChecker::Read(String& line) {
    ++line_.number;
    line_.text.swap(line);
    const LineParts parts(line_.text);
    LineCode code = Feed();
    if (code == LineCode::PlateComplete) {
        ClosePlate();
        // The next look-up begins with the line that completed the plate.
        code = Feed();
    }
    switch (code) {
    case LineCode::PlateOpened:
        return OpenPlate(parts);
    case LineCode::Applied:
    case LineCode::Failed:
        return ReadKeyword(parts, code == LineCode::Failed);
    case LineCode::UnknownKeyword:
        return UnknownKeyword(parts);
    case LineCode::IncludeOutside:
        return AddStop("INCLUDE is not followed and ends every search of the library", false);
    case LineCode::StrayLine:
        return StrayLine(parts);
    default:
        return;
    }
}

void LibraryChecker::OpenPlate(const LineParts& parts) {
    ++plates_;
    inPlate_ = true;
    broken_ = false;
    commented_ = false;
    lines_.plate = line_;
    lines_.values.clear();
    lines_.subWells.clear();
    givenInSubWell_.clear();
    plate_.Properties.Clear();
    CheckArgument(TraitsOf(Keyword::Plate), parts, line_, findings_);

    const auto [known, isNew] = plateNames_.emplace(LowerText(parts.first), line_.number);
    if (!isNew && !parts.first.empty()) {
        findings_.Error(line_, parts.first,
                        "never found: line " + std::to_string(known->second) +
                            " has a plate of this name");
    }
}

void LibraryChecker::ClosePlate() {
    // What a failed line leaves behind is not what the plate is meant to be.
    if (!broken_) CheckPlate(plate_, lines_, findings_);
    if (!broken_ && standards_ == Standards::Slas) CheckSlas(plate_, lines_, findings_);
    plate_.BeginReading();
    inPlate_ = false;
}

void LibraryChecker::ReadKeyword(const LineParts& parts, bool failed) {
    const KeywordTraits* const traits = FindKeyword(parts.keyword);
    if (!traits || traits->argument == ArgumentKind::Ignored) return;
    CheckArgument(*traits, parts, line_, findings_);
    NoteRepetition(*traits, parts);
    CheckTrailingComment(*traits, parts);
    if (failed) {
        broken_ = true;
        return AddStop(ReasonOfFailure(*traits, parts), true);
    }
    if (plate_.CompoundWell()->Count() > static_cast<Long>(lines_.subWells.size())) {
        lines_.subWells.push_back(line_);
        CheckSubWellName(parts);
    }
}

/// Remembers where a value is given, and reports one that replaces an earlier one.
void LibraryChecker::NoteRepetition(const KeywordTraits& traits, const LineParts& parts) {
    using Kind = ArgumentKind;
    if (traits.keyword == Keyword::Well) return givenInSubWell_.clear();
    if (traits.argument == Kind::Tag || traits.argument == Kind::TagList) return;
    SourceLine& given = (traits.ofSubWell ? givenInSubWell_ : lines_.values)[traits.keyword];
    if (given.number != 0) {
        findings_.Warning(line_, parts.keyword,
                          "replaces the " + String(traits.name) + " of line " +
                              std::to_string(given.number));
    }
    given = line_;
}

/// Reports the first comment of a plate that becomes part of a recorded value.
void LibraryChecker::CheckTrailingComment(const KeywordTraits& traits, const LineParts& parts) {
    const bool recorded =
        traits.argument != ArgumentKind::Tag && traits.argument != ArgumentKind::TagList;
    if (commented_ || !recorded || parts.rest.size() == parts.surplus.size()) return;
    commented_ = true;
    findings_.Warning(line_, parts.rest.substr(parts.surplus.size()),
                      "part of the recorded value, which programs are given and write with it");
}

void LibraryChecker::CheckSubWellName(const LineParts& parts) {
    if (!EqualNoCase(parts.keyword, "WELL")) {
        return findings_.Warning(line_, parts.keyword,
                                 "no WELL line before it: it begins a sub-well named DEFAULT");
    }
    const std::size_t stop = parts.first.find('.');
    if (stop != parts.first.npos) {
        findings_.Warning(
            line_, parts.first.substr(stop, 1),
            "a sub-well whose name has a full stop is lost when the plate is written");
    }
}

void LibraryChecker::UnknownKeyword(const LineParts& parts) {
    findings_.Error(
        line_, parts.keyword,
        "unknown keyword \"" + Shown(parts.keyword) +
            "\": the line is ignored, and in a plate handed on as text so is everything "
            "after it");
}

void LibraryChecker::StrayLine(const LineParts& parts) {
    const String shown = "\"" + Shown(parts.keyword) + "\"";
    if (EqualNoCase(parts.keyword, "END"))
        return AddStop("END ends every search of the library", false);
    if (parts.keyword.starts_with(kByteOrderMark))
        return AddStop("a byte order mark is read as text", false);
    const KeywordTraits* const traits = FindKeyword(parts.keyword);
    if (traits && traits->argument != ArgumentKind::Ignored)
        return AddStop(shown + " outside of a plate", false);
    AddStop("stray text " + shown + " outside of a plate", false);
}

void LibraryChecker::AddStop(String reason, bool insidePlate) {
    stops_.push_back({line_, std::move(reason), plates_, insidePlate});
}

void LibraryChecker::Report(const Stop& stop) {
    const Long hidden = plates_ - stop.platesUpToHere;
    String lost = hidden > 0 ? PlateCount(hidden) + " after it" : "any plate after it";
    if (stop.insidePlate) lost = "this plate and " + lost;
    findings_.Error(stop.line, LineParts(stop.line.text).keyword,
                    stop.reason + ": " + lost + " cannot be found");
}

std::vector<Finding> LibraryChecker::Finish() && {
    if (inPlate_) ClosePlate();
    for (const Stop& stop : stops_)
        Report(stop);
    return std::move(findings_).Sorted();
}

} // namespace zorvane
