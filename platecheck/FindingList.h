#pragma once

#include "platecheck/LibraryCheck.h"

#include <string_view>
#include <vector>

namespace zorvane {

/// A line of a library and where it stands, kept for findings that turn up later.
struct SourceLine {
    Long number = 0; ///< from 1; 0 for no line
    String text;
};

/// The findings of one library.
class FindingList {
  public:
    explicit FindingList(String file) : file_(std::move(file)) {}

    /// `part` looks into the text of the line.
    void Error(const SourceLine& line, std::string_view part, String message) {
        Add(Severity::Error, line, part, std::move(message));
    }
    void Warning(const SourceLine& line, std::string_view part, String message) {
        Add(Severity::Warning, line, part, std::move(message));
    }
    void Add(Severity severity, const SourceLine& line, std::string_view part, String message);

    /// Everything found, in the order of lines and columns.
    std::vector<Finding> Sorted() &&;

  private:
    String file_;
    std::vector<Finding> findings_;
};

/// A text in printable characters, cut when it is long, for use inside a message.
String Shown(std::string_view text);

} // namespace zorvane
