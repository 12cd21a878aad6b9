#include "library/LineDifference.h"

#include <algorithm>
#include <span>
#include <unordered_map>

namespace zorvane {

namespace {

using Lines = std::span<const std::size_t>;

/// Up to this number of pairs, lines are compared one by one.
constexpr std::size_t kPairsAtMost = 4'000'000;

class Comparison {
  public:
    void Run(Lines before, Lines after) {
        std::size_t front = 0;
        while (front < std::min(before.size(), after.size()) && before[front] == after[front])
            ++front;
        Note(LineChange::Same, front);
        before = before.subspan(front);
        after = after.subspan(front);
        std::size_t back = 0;
        while (back < std::min(before.size(), after.size()) &&
               before[before.size() - back - 1] == after[after.size() - back - 1])
            ++back;
        Differing(before.first(before.size() - back), after.first(after.size() - back));
        Note(LineChange::Same, back);
    }

    std::vector<LineChange> changes;

  private:
    struct Anchor {
        std::size_t before;
        std::size_t after;
    };

    void Note(LineChange change, std::size_t count) {
        changes.insert(changes.end(), count, change);
    }

    void Differing(Lines before, Lines after) {
        const bool few = before.empty() || after.size() <= kPairsAtMost / before.size();
        if (few) return OneByOne(before, after);
        Anchor done{0, 0};
        for (const Anchor& next : InOrder(CommonUnique(before, after))) {
            Run(before.subspan(done.before, next.before - done.before),
                after.subspan(done.after, next.after - done.after));
            Note(LineChange::Same, 1);
            done = {next.before + 1, next.after + 1};
        }
        if (done.after > 0) return Run(before.subspan(done.before), after.subspan(done.after));
        Note(LineChange::Removed, before.size());
        Note(LineChange::Added, after.size());
    }

    /// The longest common subsequence, from a table of its lengths for all pairs of line ends.
    void OneByOne(Lines before, Lines after) {
        const std::size_t width = after.size() + 1;
        lengths_.assign((before.size() + 1) * width, 0);
        for (std::size_t i = before.size(); i-- > 0;) {
            for (std::size_t j = after.size(); j-- > 0;) {
                const std::size_t at = i * width + j;
                lengths_[at] = before[i] == after[j]
                                   ? lengths_[at + width + 1] + 1
                                   : std::max(lengths_[at + width], lengths_[at + 1]);
            }
        }
        Follow(before, after);
    }

    void Follow(Lines before, Lines after) {
        const std::size_t width = after.size() + 1;
        std::size_t i = 0;
        std::size_t j = 0;
        while (i < before.size() && j < after.size()) {
            const std::size_t at = i * width + j;
            const bool same = before[i] == after[j];
            const bool removed = !same && lengths_[at + width] >= lengths_[at + 1];
            Note(same ? LineChange::Same : removed ? LineChange::Removed : LineChange::Added, 1);
            i += same || removed ? 1 : 0;
            j += same || !removed ? 1 : 0;
        }
        Note(LineChange::Removed, before.size() - i);
        Note(LineChange::Added, after.size() - j);
    }

    /// The lines that both have exactly once, in the order of the first.
    static std::vector<Anchor> CommonUnique(Lines before, Lines after) {
        struct Seen {
            std::size_t before = 0, after = 0, at = 0;
        };
        std::unordered_map<std::size_t, Seen> seen;
        for (const std::size_t line : before)
            ++seen[line].before;
        for (std::size_t at = 0; at < after.size(); ++at) {
            Seen& line = seen[after[at]];
            ++line.after;
            line.at = at;
        }
        std::vector<Anchor> common;
        for (std::size_t at = 0; at < before.size(); ++at) {
            const Seen& line = seen[before[at]];
            if (line.before == 1 && line.after == 1) common.push_back({at, line.at});
        }
        return common;
    }

    /// The longest choice of anchors whose order is the same in both.
    static std::vector<Anchor> InOrder(const std::vector<Anchor>& anchors) {
        // piles[n] is the anchor with the lowest place in the second that ends n + 1 of them.
        std::vector<std::size_t> piles;
        std::vector<std::size_t> previous(anchors.size());
        for (std::size_t each = 0; each < anchors.size(); ++each) {
            const auto pile =
                std::partition_point(piles.begin(), piles.end(), [&](std::size_t top) {
                    return anchors[top].after < anchors[each].after;
                });
            previous[each] = pile == piles.begin() ? each : *std::prev(pile);
            if (pile == piles.end()) {
                piles.push_back(each);
            } else {
                *pile = each;
            }
        }
        std::vector<Anchor> chosen(piles.size());
        std::size_t each = piles.empty() ? 0 : piles.back();
        for (std::size_t place = chosen.size(); place-- > 0; each = previous[each])
            chosen[place] = anchors[each];
        return chosen;
    }

    std::vector<std::uint32_t> lengths_;
};

/// Puts the removed lines of each change before the added ones.
void Sort(std::vector<LineChange>& changes) {
    auto from = changes.begin();
    while (from != changes.end()) {
        from = std::find_if(from, changes.end(),
                            [](LineChange change) { return change != LineChange::Same; });
        const auto to = std::find(from, changes.end(), LineChange::Same);
        std::sort(from, to);
        from = to;
    }
}

} // namespace

std::vector<LineChange> Compare(const LineNumbers& lines) {
    Comparison comparison;
    comparison.Run(lines.before, lines.after);
    Sort(comparison.changes);
    return std::move(comparison.changes);
}

} // namespace zorvane
