#include "model/PropertyBlock.h"
#include "model/cmPlate.h"
#include "platetext/LineCode.h"
#include "runtime/Checked.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"
#include "support/TStringPair.h"

#include <vector>

/// Adding, removing, renaming and exchanging sub-wells together with their recorded properties.
namespace zorvane {

namespace {

/// Replaces a pair by another at the same position. At position 1 the new pair goes to the end of
/// the list, because that is where the list puts what is added after position 0.
void ReplacePair(TStringPairList& list, Integer position, const std::shared_ptr<TStringPair>& by) {
    list.Remove(Long{position});
    list.Add(by, Checked(position) - 1);
}

/// Moves the pairs of a block from where they are now to directly after a position, which counts
/// without the block when it stands before the block. After 0 is the end of the list, as the list
/// has it.
void MoveBlock(TStringPairList& list, const PropertyBlock& block, Checked from, Checked after) {
    const bool upwards = after.Value() != 0 && after.Value() < from.Value();
    for (Integer left = block.length; left > 0 && block.Covers(list, from); --left) {
        const auto pair = list.Pair(Long{from.Value()});
        list.Remove(Long{from.Value()});
        list.Add(pair, after);
        if (upwards) {
            from = from + 1;
            after = after + 1;
        }
    }
}

void SwapBlocks(TStringPairList& list, const PropertyBlock& earlier, const PropertyBlock& later) {
    const Checked front = Checked(earlier.first) - 1;
    MoveBlock(list, later, later.first, front);
    if (front.Value() == 0) {
        // The later block could only go to the end; the earlier one follows it.
        MoveBlock(list, earlier, earlier.first, 0);
    } else {
        MoveBlock(list, earlier, Checked(earlier.first) + later.length,
                  Checked(later.first) + later.length - 2);
    }
}

} // namespace

void cmPlate::AddSubWell(const std::shared_ptr<WellDetails>& subWell, Integer index,
                         const std::shared_ptr<WellDetails>& parent) {
    layout_->AddSubWell(subWell, index);
    if (parent) {
        RecordLikeParent(subWell->WellName(), parent->WellName() + ".");
    } else {
        ReadLines(SubWellText(*subWell, ""), LineCode::Applied);
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
    const PropertyBlock block(Properties, layout_->Item(index)->WellName());
    // The editing commands show this failure for a sub-well without recorded properties.
    if (!block.Exists()) Raise(ErrorNumber::ObjectNotSet);
    for (Integer left = block.length; left > 0; --left)
        Properties.Remove(Long{block.first});
    layout_->Remove(Long{index});
}

void cmPlate::RenameSubWell(Integer index, const String& newName) {
    const auto subWell = layout_->Item(index);
    RenameBlock(subWell->WellName(), newName);
    layout_->Remove(Long{index});
    subWell->WellName(newName);
    layout_->AddSubWell(subWell, Checked(index) - 1);
}

void cmPlate::RenameBlock(const String& name, const String& newName) {
    const PropertyBlock block(Properties, name);
    if (!block.Exists()) return;
    Properties.Pair(Long{block.first})->Value(newName);
    const String prefix = newName + ".";
    Integer at = block.first;
    for (Integer left = block.length; left > 0 && block.Covers(Properties, at); --left) {
        const auto old = Properties.Pair(Long{at});
        const String keyword = old->Name().substr(block.prefix.size());
        ReplacePair(Properties, at, std::make_shared<TStringPair>(prefix + keyword, old->Value()));
        if (at > 1) at = Checked(at) + 1;
    }
}

void cmPlate::SwapSubWells(Integer index1, Integer index2) {
    const PropertyBlock block1(Properties, layout_->Item(index1)->WellName());
    const PropertyBlock block2(Properties, layout_->Item(index2)->WellName());
    if (!block1.Exists() || !block2.Exists()) return;
    if (block1.first < block2.first) SwapBlocks(Properties, block1, block2);
    if (block2.first < block1.first) SwapBlocks(Properties, block2, block1);
    layout_->Swap(index1, index2);
}

} // namespace zorvane
