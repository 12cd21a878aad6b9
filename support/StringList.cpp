#include "support/StringList.h"

#include "platform/Process.h"
#include "runtime/Checked.h"
#include "runtime/Text.h"
#include "runtime/TextFile.h"

namespace zorvane {

std::shared_ptr<StringEntry> StringList::Add(std::string_view value) {
    Size = CheckedLong(Size) + CheckedLong(CharacterCount(value));
    while (Count() >= 2 && Size > MaxSize)
        DropOldest();
    entries_.push_back(std::make_shared<StringEntry>(StringEntry{String(value)}));
    Changed = true;
    return entries_.back();
}

void StringList::DropOldest() {
    Size = CheckedLong(Size) - CheckedLong(CharacterCount(entries_.front()->Text));
    entries_.pop_front();
}

void StringList::Item(Long position, std::string_view value) {
    EntryAt(position).Text = value;
    Changed = true;
}

void StringList::Remove(Long position) {
    EntryAt(position);
    entries_.erase(entries_.begin() + (position - 1));
    Changed = true;
}

void StringList::Clear() {
    if (entries_.empty()) return;
    entries_.clear();
    Size = 0;
    Changed = true;
}

void StringList::SaveToFile(const String& fileName) const {
    try {
        TextFile file;
        file.OpenOutput(fileName);
        for (const auto& entry : entries_)
            file.WriteLine("\"" + entry->Text + "\""); // quotes inside stay single
        file.Close();
    } catch (const RuntimeError&) {
        CurrentMessages().Show({"Problem saving \r\n<" + fileName + ">", "File not saved"});
    }
}

StringEntry& StringList::EntryAt(Long position) const {
    if (position < 1 || position > Count()) Raise(ErrorNumber::SubscriptOutOfRange);
    return *entries_[static_cast<std::size_t>(position - 1)];
}

} // namespace zorvane
