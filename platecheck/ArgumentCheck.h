#pragma once

#include "platecheck/FindingList.h"
#include "platetext/Keywords.h"
#include "platetext/LineParts.h"

namespace zorvane {

/// Finds what the reader does not take, or hardly as it was meant, in the argument of a keyword.
void CheckArgument(const KeywordTraits& traits, const LineParts& parts, const SourceLine& line,
                   FindingList& findings);

/// Why a keyword line inside a plate failed.
String ReasonOfFailure(const KeywordTraits& traits, const LineParts& parts);

} // namespace zorvane
