#pragma once

#include "support/TStringPairList.h"

#include <optional>

namespace zorvane {

/// What a file may hold: just one list of pairs, or other sections around and after it as well.
enum class FileContent { NothingElse, Any };

/// A list of pairs in an XML file. Failures are RuntimeErrors with a description for the user.
class SavedPairs {
  public:
    explicit SavedPairs(String file) : file_(std::move(file)) {}

    /// Reads the list, its name without the quotes that it is saved in. A file that is to be saved
    /// again may hold nothing else.
    void Read(TStringPairList& list, FileContent content);

    /// Replaces the file that was read, which must still be the same, or creates one. Warns the
    /// user of what the file does not keep, and fails when the list could not be read back.
    void Save(const TStringPairList& list) const;

  private:
    String file_;
    std::optional<String> bytes_; ///< of the file that is to be saved again
};

/// Whether a list has this very pair, apart from letter case of its name.
bool Holds(const TStringPairList& list, const TStringPair& pair);

} // namespace zorvane
