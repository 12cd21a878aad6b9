#pragma once

#include "runtime/Export.h"
#include "runtime/KeyedStore.h"
#include "runtime/Types.h"
#include "support/TStringPair.h"

#include <memory>
#include <string_view>
#include <vector>

namespace zorvane {

class XMLFile;

/// An ordered list of shared name/value pairs, unique by the names they are added with, compared
/// without regard to case. Positions count from 1.
///
/// Errors of look-ups: 5 for an absent name, 9 for a position outside 1 to Count().
class ZORVANE_EXPORT TStringPairList {
  public:
    /// What Value gives for an absent name when ErrorOnFail is false.
    static constexpr const char* kMissingValue = "\x1B\x1B";

    String Name;
    /// When false, a failed look-up by Pair yields no pair instead of an error.
    Boolean ErrorOnFail = true;
    /// Set by Add and by a Value that differs, never by a removal; the owner clears it.
    Boolean DataChanged = false;

    /// Takes over the source's members and copies of its pairs.
    void Copy(const TStringPairList& source);

    /// Replaces the pairs by those of the section that is read to its end, and the name, which
    /// comes with the quotes that it is written in. Errors of XMLFile; what was read until then
    /// stays.
    void ReadFromXML(XMLFile& x);
    /// Writes the list as a section. Pairs whose value equals their name, ignoring letter case, are
    /// left out: readers of such files take a missing name as its own value.
    void WriteToXML(XMLFile& x) const;
    /// Adds the pairs found in the key's subkey Entries, at most 51, and takes the name. The result
    /// is false whether it worked or not. Errors 13 and 6 for a stored count that is no 16-bit
    /// number, 9 when no entries can be read; the name has been taken then.
    Boolean ReadFromRegistry(Long root, const String& key);
    /// Stores count, name and pairs; values of other pairs stay in Entries. Failures are shown,
    /// and the result is false whether it worked or not.
    Boolean WriteToRegistry(Long root, const String& key) const;

    void Clear() { pairs_.Clear(); }

    /// Adds the pair at the end (0), in front (negative) or after a position, replacing a pair of
    /// the same name, and returns it. A failure is shown in a message box and gives null; a pair
    /// that was to be replaced is then gone.
    std::shared_ptr<TStringPair> Add(std::shared_ptr<TStringPair> pair, Integer afterIndex = 0);

    std::shared_ptr<TStringPair> Pair(Long position) const;
    std::shared_ptr<TStringPair> Pair(std::string_view name) const;
    /// The pair of this name, or null, regardless of ErrorOnFail.
    TStringPair* Find(std::string_view name) const { return pairs_.Find(name); }
    /// The pair after the one found last when its name is these two parts in a row, or null.
    TStringPair* FindNext(std::string_view first, std::string_view rest) const {
        return pairs_.FindNext(first, rest);
    }

    String Value(std::string_view name) const;
    /// Sets the value of a pair; an absent one is appended.
    void Value(std::string_view name, std::string_view newValue);

    /// The first position whose pair has this name at present; 0 when there is none.
    Integer IndexOf(std::string_view name) const;
    Long Count() const { return pairs_.Count(); }

    void Remove(Long position) { pairs_.Remove(position); }
    void Remove(std::string_view name) { pairs_.Remove(name); }

    /// The shared pairs in list order.
    auto begin() const { return pairs_.begin(); }
    auto end() const { return pairs_.end(); }

    /// One line for each pair: name, TAB, value in double quotes, CR LF.
    String TextTable() const;
    /// The names in list order; error 9 for an empty list.
    std::vector<String> VariableNames() const;

  private:
    bool TryInsert(const std::shared_ptr<TStringPair>& pair, Integer afterIndex, Long count);

    KeyedStore<TStringPair> pairs_;
};

} // namespace zorvane
