#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"
#include "support/StringEntry.h"

#include <deque>
#include <memory>
#include <string_view>

namespace zorvane {

/// An ordered list of texts that forgets its oldest ones when their total length goes beyond a cap,
/// such as a log that is shown. Positions count from 1; error 9 for one outside 1 to Count().
class ZORVANE_EXPORT StringList {
  public:
    /// Set by everything that modifies the list; the owner clears it.
    Boolean Changed = false;
    /// The characters of the texts that were added and not dropped by the cap. Replacing and
    /// removing single texts leaves it unchanged: owners that do so correct it themselves.
    Long Size = 0;
    /// What Size may come to; the last text is never dropped, however long it is.
    Long MaxSize = 65000;

    /// Appends a text after dropping the oldest ones that it leaves no room for. Takes the same
    /// time however many texts there are. Error 6 when Size would not fit 32 bits.
    std::shared_ptr<StringEntry> Add(std::string_view value);

    const String& Item(Long position) const { return EntryAt(position).Text; }
    void Item(Long position, std::string_view value);
    Long Count() const { return static_cast<Long>(entries_.size()); }
    void Remove(Long position);
    /// Removes everything; an empty list does not count as changed by it.
    void Clear();

    /// Writes each text in double quotes on a line of its own. A failure is shown in a message box.
    void SaveToFile(const String& fileName) const;

    /// The shared entries in list order.
    auto begin() const { return entries_.begin(); }
    auto end() const { return entries_.end(); }

  private:
    StringEntry& EntryAt(Long position) const;
    void DropOldest();

    std::deque<std::shared_ptr<StringEntry>> entries_;
};

} // namespace zorvane
