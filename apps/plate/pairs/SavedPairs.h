#pragma once

#include "library/DiskFiles.h"
#include "support/TStringPairList.h"

#include <memory>
#include <optional>

namespace zorvane {

/// A list of pairs in an XML file; "-" is standard input. Failures are RuntimeErrors with a
/// description for the user.
class SavedPairs {
  public:
    explicit SavedPairs(String file) : file_(std::move(file)) {}

    /// Reads the list, its name without the quotes that it is saved in.
    void Read(TStringPairList& list) const;
    /// Read for a file that is to be saved again, which nobody else saves meanwhile and which must
    /// hold nothing but the list. One that is not there leaves the list as it is if it may be new.
    void ReadToChange(TStringPairList& list, bool mayBeNew);
    /// Makes what is to be saved. Fails when the list could not be read back from it, and warns of
    /// what other programs do not read.
    void Prepare(const TStringPairList& list);
    /// Saves that in the file that was read to be changed, or creates it.
    void Save();

  private:
    void ReadBytes(TStringPairList& list, const String& bytes) const;

    String file_;
    DiskFiles files_;
    std::shared_ptr<void> lock_;
    std::optional<String> bytes_; ///< of the file that is to be saved again
    String toSave_;
};

/// Whether a list has this very pair, apart from letter case of its name.
bool Holds(const TStringPairList& list, const TStringPair& pair);

} // namespace zorvane
