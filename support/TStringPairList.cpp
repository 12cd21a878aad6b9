#include "support/TStringPairList.h"

#include "platform/ShowError.h"
#include "runtime/Checked.h"
#include "runtime/TextFunctions.h"

namespace zorvane {

void TStringPairList::Copy(const TStringPairList& source) {
    Clear();
    ErrorOnFail = source.ErrorOnFail;
    Name = source.Name;
    for (const auto& pair : source)
        Add(std::make_shared<TStringPair>(*pair));
    DataChanged = source.DataChanged;
}

std::shared_ptr<TStringPair> TStringPairList::Add(std::shared_ptr<TStringPair> pair,
                                                  Integer afterIndex) {
    try {
        if (!pair) Raise(ErrorNumber::ObjectNotSet);
        // Callers rely on the place being chosen before a pair of the same name is removed.
        const Long count = Count();
        while (!TryInsert(pair, afterIndex, count))
            pairs_.Remove(pair->Name());
    } catch (const RuntimeError& error) {
        ShowError(error, "TStringPairList.Add()");
        return nullptr;
    }
    DataChanged = true;
    return pair;
}

bool TStringPairList::TryInsert(const std::shared_ptr<TStringPair>& pair, Integer afterIndex,
                                Long count) {
    if (count < 1 || afterIndex == 0) return pairs_.TryAppend(pair->Name(), pair);
    if (afterIndex < 1) return pairs_.TryInsertBefore(1, pair->Name(), pair);
    return pairs_.TryInsertAfter(afterIndex, pair->Name(), pair);
}

std::shared_ptr<TStringPair> TStringPairList::Pair(Long position) const {
    const bool present = position >= 1 && position <= Count();
    return present || ErrorOnFail ? pairs_.Item(position) : nullptr;
}

std::shared_ptr<TStringPair> TStringPairList::Pair(std::string_view name) const {
    const auto* const pair = pairs_.FindShared(name);
    if (pair) return *pair;
    if (ErrorOnFail) Raise(ErrorNumber::InvalidProcedureCall);
    return nullptr;
}

String TStringPairList::Value(std::string_view name) const {
    const auto pair = Pair(name);
    return pair ? pair->Value() : kMissingValue;
}

void TStringPairList::Value(std::string_view name, std::string_view newValue) {
    TStringPair* const pair = pairs_.Find(name);
    if (!pair) {
        Add(std::make_shared<TStringPair>(String(name), String(newValue)));
    } else if (pair->Value() != newValue) {
        pair->Value(newValue);
        DataChanged = true;
    }
}

Integer TStringPairList::IndexOf(std::string_view name) const {
    Long position = 0;
    for (const auto& pair : pairs_) {
        ++position;
        if (EqualNoCase(pair->Name(), name)) return Checked(position).Value();
    }
    return 0;
}

String TStringPairList::TextTable() const {
    String table;
    for (const auto& pair : pairs_)
        table += pair->Name() + "\t" + QuoteText(pair->Value(), "\"") + "\r\n";
    return table;
}

std::vector<String> TStringPairList::VariableNames() const {
    if (Count() == 0) Raise(ErrorNumber::SubscriptOutOfRange);
    std::vector<String> names;
    for (const auto& pair : pairs_)
        names.push_back(pair->Name());
    return names;
}

} // namespace zorvane
