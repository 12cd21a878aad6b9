#pragma once

#include "runtime/Types.h"

#include <cstdint>
#include <vector>

namespace zorvane {

/// An error stands where the reader stops or does not take what is written; a warning where it
/// takes the line, but the plate is hardly what was meant.
enum class Severity : std::uint8_t { Warning, Error };

/// One thing wrong in a library file, and the part of a line that it concerns.
struct Finding {
    String file;
    Long line = 0;   ///< from 1
    Long column = 0; ///< from 1, in characters
    Long length = 0; ///< in characters, at least 1
    Severity severity = Severity::Error;
    String message;
    String lineText; ///< the line in printable characters; of a long one the part around the column
    Long caret = 0;  ///< where in lineText the part begins, in characters from 0
};

/// What plates are compared with beyond the rules of libraries.
enum class Standards : std::uint8_t {
    None,
    Slas ///< those of microplates; each difference is a warning
};

/// Reads a whole library as the look-up of a plate does, but past everything that ends a look-up,
/// and tells what is wrong with it in the order of the lines. Errors 53, 76, 75 and 57 as for
/// reading a file.
std::vector<Finding> CheckLibrary(const String& fileName, Standards standards = Standards::None);

/// The same for the text of a library, which findings give that name.
std::vector<Finding> CheckLibraryText(const String& text, const String& name,
                                      Standards standards = Standards::None);

/// "error" or "warning".
String SeverityText(Severity severity);

/// "file:line:column: error: message" and below it the line and a caret, each ended by a line feed.
String FindingText(const Finding& finding);

} // namespace zorvane
