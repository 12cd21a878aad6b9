#include "platecheck/ArgumentCheck.h"

#include "model/WellStyle.h"
#include "runtime/NumberText.h"
#include "runtime/Rounding.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"
#include "runtime/TextFunctions.h"

#include <optional>

namespace zorvane {

namespace {

using Kind = ArgumentKind;

bool BeginsComment(std::string_view word) {
    return !word.empty() && kCommentMarks.find(word.front()) != kCommentMarks.npos;
}

/// The value of a word; nothing when it is too large for a Single.
std::optional<Single> ValueOf(std::string_view word) {
    try {
        return LeadingSingle(word);
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

bool FitsInteger(Single value) {
    try {
        return ToInteger(value), true;
    } catch (const RuntimeError&) {
        return false;
    }
}

/// One line and its argument, and where to report what is wrong with it.
class Check {
  public:
    Check(const KeywordTraits& traits, const LineParts& parts, const SourceLine& line,
          FindingList& findings)
        : keyword_(traits.keyword), name_(traits.name), parts_(parts), line_(line),
          findings_(findings) {}

    void Run(Kind kind) {
        if (parts_.argument.empty() || BeginsComment(parts_.first)) return Missing(kind);
        if (kind == Kind::Tag) return Tag();
        if (kind == Kind::TagList) return TagList();
        if (kind == Kind::Coordinates) return Coordinates();
        if (kind == Kind::Whole || kind == Kind::Number) Number(parts_.first, kind == Kind::Whole);
        if (kind == Kind::Style) Style();
        if (kind == Kind::Name || kind == Kind::Label) GluedComment();
        Surplus();
    }

  private:
    void Missing(Kind kind) const {
        const std::string_view part = parts_.argument.empty() ? parts_.keyword : parts_.first;
        if (kind == Kind::Name && !parts_.argument.empty())
            return findings_.Error(line_, part, "\"" + Shown(part) + "\" is taken as the name");
        if (keyword_ == Keyword::Plate)
            return findings_.Error(line_, part, "a plate without a name can never be found");
        if (keyword_ == Keyword::Well) {
            return findings_.Warning(line_, part,
                                     "WELL without a name begins the sub-well DEFAULT");
        }
        if (kind == Kind::Label || kind == Kind::Style || kind == Kind::Whole ||
            kind == Kind::Number)
            return findings_.Error(line_, part, String(name_) + " needs a value");
        findings_.Warning(line_, part, String(name_) + " without a value");
    }

    void Number(std::string_view word, bool whole) const {
        const std::optional<Single> value = ValueOf(word);
        if (!value) return; // a line that fails is reported as such
        if (!IsNumber(word)) return NotANumber(word, *value);
        if (whole && FitsInteger(*value) && *value != static_cast<Single>(ToInteger(*value))) {
            findings_.Warning(line_, word,
                              Shown(word) + " is rounded to " + std::to_string(ToInteger(*value)));
        }
    }

    void NotANumber(std::string_view word, Single value) const {
        String message =
            "\"" + Shown(word) + "\" is not a number: it counts as " + SingleText(value);
        if (word.find(',') != word.npos) message += "; the decimal mark is a point";
        if (word.find_first_of(kCommentMarks) != word.npos)
            message += "; a comment needs a blank before it";
        findings_.Error(line_, word, std::move(message));
    }

    void Style() const {
        if (WellStyleCode(parts_.first)) return;
        findings_.Error(line_, parts_.first,
                        "no style is named \"" + Shown(parts_.first) +
                            "\": the line is ignored; ROUND, CCSHELF, PILLAR and SQUARE are known");
    }

    void GluedComment() const {
        const std::size_t mark = parts_.first.find_first_of(kCommentMarks);
        if (mark == parts_.first.npos) return;
        findings_.Warning(line_, parts_.first.substr(mark),
                          "part of the name: a comment needs a blank before it");
    }

    void Surplus() const {
        if (parts_.surplus.empty()) return;
        findings_.Warning(line_, parts_.surplus,
                          "ignored: only the first word after " + String(name_) + " counts");
    }

    void Tag() const {
        if (parts_.rest.size() == parts_.surplus.size()) return;
        findings_.Warning(line_, parts_.rest.substr(parts_.surplus.size()),
                          "part of the tag: a TAG line cannot have a comment");
    }

    void TagList() const {
        std::string_view words = parts_.argument;
        for (auto word = NextWord(words); !word.empty(); word = NextWord(words)) {
            if (word.front() == ';') return;
            if (word.front() == '\'') {
                return findings_.Warning(line_, word,
                                         "taken as tags: a comment after TAGLIST begins with ;");
            }
        }
    }

    void Coordinates() const {
        if (parts_.keyword != name_) {
            findings_.Warning(line_, parts_.keyword,
                              "never used: coordinate keywords count in upper case only");
        }
        std::string_view words = parts_.argument;
        for (int i = 0; i < 3; ++i) {
            const std::string_view word = NextWord(words);
            if (word.empty() || BeginsComment(word)) break;
            Number(word, false);
            const std::optional<Single> value = ValueOf(word);
            if (!value || (i == 0 && !FitsInteger(*value))) {
                findings_.Error(line_, word,
                                "too large: where " + String(name_) +
                                    " is the coordinate system, every search ends here");
            }
        }
    }

    Keyword keyword_;
    std::string_view name_;
    const LineParts& parts_;
    const SourceLine& line_;
    FindingList& findings_;
};

} // namespace

void CheckArgument(const KeywordTraits& traits, const LineParts& parts, const SourceLine& line,
                   FindingList& findings) {
    Check(traits, parts, line, findings).Run(traits.argument);
}

String ReasonOfFailure(const KeywordTraits& traits, const LineParts& parts) {
    const String quoted = "\"" + Shown(parts.first) + "\"";
    if (traits.keyword == Keyword::Well) return "the plate has a sub-well " + quoted + " already";
    if (!ValueOf(parts.first)) return quoted + " is too large a number";
    return quoted + " is outside of -32768 to 32767";
}

} // namespace zorvane
