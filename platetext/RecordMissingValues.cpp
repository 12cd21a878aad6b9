#include "platetext/RecordMissingValues.h"

#include "platetext/Keywords.h"
#include "runtime/Text.h"
#include "support/TStringPair.h"

#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace zorvane {

namespace {

/// A rim width that is read before any rim height gives both, so it comes first.
constexpr Keyword kMovedValues[] = {
    Keyword::XOffset,   Keyword::YOffset,    Keyword::Depth,      Keyword::RimWidth,
    Keyword::RimHeight, Keyword::RimCenterX, Keyword::RimCenterY,
};

/// Copies a list, with what is missing of each sub-well's properties after the last of them. One
/// pass over the list: finding each block and making room in it takes long for many sub-wells.
class Completion {
  public:
    explicit Completion(const cmPlate& plate) : plate_(plate) {
        for (const auto& subWell : *plate.CompoundWell())
            subWells_.try_emplace(UpperText(subWell->WellName() + ".Well"), subWell.get());
    }

    std::vector<std::shared_ptr<TStringPair>> Run() {
        for (const auto& pair : plate_.Properties) {
            if (block_ && !StartsWithNoCase(pair->Name(), prefix_)) EndBlock();
            if (!block_) BeginBlock(pair->Name());
            pairs_.push_back(pair);
        }
        if (block_) EndBlock();
        return std::move(pairs_);
    }

  private:
    /// Begins one where the name is that of a sub-well's first property.
    void BeginBlock(const String& name) {
        const auto found = subWells_.find(UpperText(name));
        if (found == subWells_.end()) return;
        block_ = found->second;
        prefix_ = block_->WellName() + ".";
        subWells_.erase(found);
    }

    void EndBlock() {
        for (const Keyword keyword : kMovedValues) {
            const String name = prefix_ + String(TraitsOf(keyword).name);
            if (!plate_.Properties.Find(name)) {
                pairs_.push_back(
                    std::make_shared<TStringPair>(name, SubWellValueText(*block_, keyword)));
            }
        }
        block_ = nullptr;
    }

    const cmPlate& plate_;
    std::unordered_map<String, const WellDetails*> subWells_; ///< by the names of their first pairs
    std::vector<std::shared_ptr<TStringPair>> pairs_;
    const WellDetails* block_ = nullptr; ///< the sub-well whose properties are passed
    String prefix_;
};

} // namespace

// A sub-well without a line of its own is left alone: its values are those of the plate's lines.
void RecordMissingValues(cmPlate& plate) {
    const auto pairs = Completion(plate).Run();
    plate.Properties.Clear();
    for (const auto& pair : pairs)
        plate.Properties.Add(pair);
}

} // namespace zorvane
