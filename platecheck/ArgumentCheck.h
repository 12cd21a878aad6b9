#pragma once

#include "platecheck/FindingList.h"
#include "platetext/LineParts.h"

#include <cstdint>
#include <string_view>

namespace zorvane {

/// What a keyword takes.
enum class ArgumentKind : std::uint8_t {
    Nothing,
    Name,
    Label,
    Whole,
    Number,
    Style,
    Tag,
    TagList,
    Coordinates,
};

struct KeywordTraits {
    std::string_view name; ///< in upper case
    ArgumentKind argument = ArgumentKind::Nothing;
    bool ofSubWell = false;
};

/// Null for a word that is no keyword or whose argument has no meaning.
const KeywordTraits* FindTraits(std::string_view keyword);

/// Finds what the reader does not take, or hardly as it was meant, in the argument of a keyword.
void CheckArgument(const KeywordTraits& traits, const LineParts& parts, const SourceLine& line,
                   FindingList& findings);

/// Why a keyword line inside a plate failed.
String ReasonOfFailure(const KeywordTraits& traits, const LineParts& parts);

} // namespace zorvane
