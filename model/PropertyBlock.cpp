#include "model/PropertyBlock.h"

#include "runtime/Checked.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"
#include "support/TStringPair.h"

namespace zorvane {

PropertyBlock::PropertyBlock(const TStringPairList& list, std::string_view subWell)
    : prefix(String(subWell) + "."), first(list.IndexOf(prefix + "Well")), length(0) {
    while (Exists() && Covers(list, Checked(first) + length))
        length = Checked(length) + 1;
}

bool PropertyBlock::Covers(const TStringPairList& list, Integer position) const {
    if (position > list.Count()) return false;
    const auto pair = list.Pair(Long{position});
    if (!pair) Raise(ErrorNumber::ObjectNotSet);
    return StartsWithNoCase(pair->Name(), prefix);
}

} // namespace zorvane
