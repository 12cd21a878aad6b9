#include "model/cmPlate.h"
#include "platetext/LineCode.h"
#include "runtime/Checked.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"
#include "support/TStringPair.h"

#include <vector>

/// Adding, removing, renaming and exchanging sub-wells. The recorded properties of a sub-well form
/// a block: the pair "<name>.Well" and the pairs after it whose names begin with "<name>.".
namespace zorvane {

namespace {

bool InBlock(const TStringPairList& list, Integer position, const String& prefix) {
    if (position > list.Count()) return false;
    const auto pair = list.Pair(Long{position});
    if (!pair) Raise(ErrorNumber::ObjectNotSet);
    return StartsWithNoCase(pair->Name(), prefix);
}

Integer BlockLength(const TStringPairList& list, Integer position, const String& prefix) {
    Checked length = 0;
    while (InBlock(list, Checked(position) + length, prefix))
        length = length + 1;
    return length;
}

/// Replaces a pair by another at the same position. At position 1 the new pair goes to the end of
/// the list, because that is where the list puts what is added after position 0.
void ReplacePair(TStringPairList& list, Integer position, const std::shared_ptr<TStringPair>& by) {
    list.Remove(Long{position});
    list.Add(by, Checked(position) - 1);
}

/// Moves a block of pairs from `from` to directly behind `after`, which counts without the block
/// when that stands in front of it. After 0 is the end of the list, as the list has it.
void MoveBlock(TStringPairList& list, Checked from, Integer length, Checked after,
               const String& prefix) {
    const bool upwards = after.Value() != 0 && after.Value() < from.Value();
    for (; length > 0 && InBlock(list, from.Value(), prefix); --length) {
        const auto pair = list.Pair(Long{from.Value()});
        list.Remove(Long{from.Value()});
        list.Add(pair, after);
        if (upwards) {
            from = from + 1;
            after = after + 1;
        }
    }
}

/// The recorded properties of a sub-well: where they begin, 0 when there are none.
struct Block {
    String prefix;
    Integer at;
    Integer length;

    Block(const TStringPairList& list, const WellDetails& subWell)
        : prefix(subWell.WellName() + "."), at(list.IndexOf(prefix + "Well")),
          length(at == 0 ? Integer{0} : BlockLength(list, at, prefix)) {}
};

void SwapBlocks(TStringPairList& list, const Block& earlier, const Block& later) {
    const Checked front = Checked(earlier.at) - 1;
    MoveBlock(list, later.at, later.length, front, later.prefix);
    if (front.Value() == 0) {
        // The later block could only go to the end; the earlier one follows it.
        MoveBlock(list, earlier.at, earlier.length, 0, earlier.prefix);
    } else {
        MoveBlock(list, Checked(earlier.at) + later.length, earlier.length,
                  Checked(later.at) + later.length - 2, earlier.prefix);
    }
}

} // namespace

void cmPlate::AddSubWell(const std::shared_ptr<WellDetails>& subWell, Integer index,
                         const std::shared_ptr<WellDetails>& parent) {
    layout_->AddSubWell(subWell, index);
    if (parent) {
        RecordLikeParent(subWell->WellName(), parent->WellName() + ".");
    } else {
        ReadLines(SubWellText(*subWell, ""), kApplied);
    }
}

void cmPlate::RecordLikeParent(const String& name, const String& parentPrefix) {
    // The new pairs may themselves begin with the parent's prefix, so the list is read before.
    const String prefix = name + ".";
    std::vector<std::shared_ptr<TStringPair>> added;
    for (const auto& each : Properties) {
        if (!StartsWithNoCase(each->Name(), parentPrefix)) continue;
        const String keyword = each->Name().substr(parentPrefix.size());
        added.push_back(std::make_shared<TStringPair>(prefix + keyword,
                                                      keyword == "Well" ? name : each->Value()));
    }
    for (const auto& each : added)
        Properties.Add(each);
}

void cmPlate::RemoveSubWell(Integer index) {
    const Block block(Properties, *layout_->Item(index));
    // The editing commands show this failure for a sub-well without recorded properties.
    if (block.at == 0) Raise(ErrorNumber::ObjectNotSet);
    for (Integer left = block.length; left > 0; --left)
        Properties.Remove(Long{block.at});
    layout_->Remove(Long{index});
}

void cmPlate::RenameSubWell(Integer index, const String& newName) {
    const auto subWell = layout_->Item(index);
    RenameBlock(*subWell, newName);
    layout_->Remove(Long{index});
    subWell->WellName(newName);
    layout_->AddSubWell(subWell, Checked(index) - 1);
}

void cmPlate::RenameBlock(const WellDetails& subWell, const String& newName) {
    const Block block(Properties, subWell);
    if (block.at == 0) return;
    Properties.Pair(Long{block.at})->Value(newName);
    const String prefix = newName + ".";
    Integer at = block.at;
    for (Integer left = block.length; left > 0 && InBlock(Properties, at, block.prefix); --left) {
        const auto old = Properties.Pair(Long{at});
        const String keyword = old->Name().substr(block.prefix.size());
        ReplacePair(Properties, at, std::make_shared<TStringPair>(prefix + keyword, old->Value()));
        if (at > 1) at = Checked(at) + 1;
    }
}

void cmPlate::SwapSubWells(Integer index1, Integer index2) {
    const Block first(Properties, *layout_->Item(index1));
    const Block second(Properties, *layout_->Item(index2));
    if (first.at == 0 || second.at == 0) return;
    if (first.at < second.at) SwapBlocks(Properties, first, second);
    if (second.at < first.at) SwapBlocks(Properties, second, first);
    layout_->Swap(index1, index2);
}

} // namespace zorvane
