#pragma once

#include "runtime/Types.h"
#include "support/TStringPairList.h"

#include <string_view>

namespace zorvane {

/// The recorded properties of one sub-well in a plate's list: the pair "<name>.Well" and the pairs
/// directly after it whose names begin with "<name>.", apart from letter case. Positions are those
/// at the time when the block was looked up.
struct PropertyBlock {
    String prefix; ///< "<name>."
    Integer first; ///< the position of the pair "<name>.Well"; 0 when there is no block
    Integer length;

    PropertyBlock(const TStringPairList& list, std::string_view subWell);

    bool Exists() const { return first != 0; }
    /// Returns whether the pair now at a position could belong to the block by its name; error 91
    /// for position 0.
    bool Covers(const TStringPairList& list, Integer position) const;
};

} // namespace zorvane
