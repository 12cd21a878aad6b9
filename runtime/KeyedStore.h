#pragma once

#include "runtime/RuntimeError.h"
#include "runtime/Text.h"
#include "runtime/Types.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace zorvane {

/// An ordered store of shared objects. Positions count from 1 and are dense; keys are unique apart
/// from letter case and are fixed when an entry is added. Looking up by key is a hash look-up, and
/// one comparison when keys are asked for in list order.
///
/// Errors: 457 for a key that is already present, 5 for an absent key, 9 for a position outside
/// 1 to Count(). A failed operation changes nothing.
template <class T>
class KeyedStore {
  public:
    using Pointer = std::shared_ptr<T>;

    Long Count() const { return static_cast<Long>(nodes_.size() - holes_); }

    // These three return false, and change nothing, when the key is already present.

    [[nodiscard]] bool TryAppend(std::string_view key, const Pointer& item) {
        if (holes_ > nodes_.size() / 2) CloseHoles();
        return TryInsert(nodes_.size(), key, item);
    }

    /// Inserts the entry directly after `position`; position 0 is the front.
    [[nodiscard]] bool TryInsertAfter(Long position, std::string_view key, const Pointer& item) {
        if (position < 0 || position > Count()) Raise(ErrorNumber::SubscriptOutOfRange);
        CloseHoles();
        return TryInsert(static_cast<std::size_t>(position), key, item);
    }

    /// Inserts so that the entry takes the place of the one at `position`.
    [[nodiscard]] bool TryInsertBefore(Long position, std::string_view key, const Pointer& item) {
        return TryInsert(IndexOf(position), key, item);
    }

    void InsertAfter(Long position, std::string_view key, const Pointer& item) {
        if (!TryInsertAfter(position, key, item)) Raise(ErrorNumber::DuplicateKey);
    }

    const Pointer& Item(Long position) const { return nodes_[IndexOf(position)]->item; }
    const Pointer& Item(std::string_view key) const { return NodeOf(key).item; }

    /// The key that the entry at a position was added under.
    const String& KeyAt(Long position) const { return nodes_[IndexOf(position)]->key; }

    /// The object under a key, or null.
    T* Find(std::string_view key) const {
        const Pointer* const found = FindShared(key);
        return found ? found->get() : nullptr;
    }

    /// The object after the one found last when its key is these two parts in a row, or null: a
    /// quick first try for look-ups in list order, which need not join the parts then.
    T* FindNext(std::string_view first, std::string_view rest) const {
        if (!IsEntry(expected_)) return nullptr;
        const std::string_view key = nodes_[expected_]->key;
        const bool same = key.size() == first.size() + rest.size() &&
                          EqualNoCase(key.substr(0, first.size()), first) &&
                          EqualNoCase(key.substr(first.size()), rest);
        return same ? nodes_[expected_++]->item.get() : nullptr;
    }

    /// The place of the shared object under a key, or null. Good until the entry is removed.
    const Pointer* FindShared(std::string_view key) const {
        const Node* const node = FindNode(key);
        return node ? &node->item : nullptr;
    }

    /// The position of a key, or 0.
    Long PositionOf(std::string_view key) const {
        CloseHoles();
        const Node* const node = FindNode(key);
        return node ? static_cast<Long>(node->index) + 1 : 0;
    }

    void Remove(Long position) {
        const std::size_t index = IndexOf(position);
        byKey_.erase(nodes_[index]->key);
        nodes_.erase(nodes_.begin() + static_cast<std::ptrdiff_t>(index));
        NumberFrom(index);
    }

    /// Takes the same time wherever the entry is.
    void Remove(std::string_view key) {
        const std::size_t index = NodeOf(key).index;
        byKey_.erase(nodes_[index]->key);
        nodes_[index].reset();
        firstHole_ = holes_ == 0 ? index : std::min(firstHole_, index);
        ++holes_;
    }

    void Clear() {
        byKey_.clear();
        nodes_.clear();
        holes_ = 0;
    }

  private:
    struct Node {
        String key;
        Pointer item;
        std::size_t index = 0;
    };
    struct Hash {
        std::size_t operator()(std::string_view key) const { return HashNoCase(key); }
    };
    struct Equal {
        bool operator()(std::string_view a, std::string_view b) const { return EqualNoCase(a, b); }
    };
    using Nodes = std::vector<std::unique_ptr<Node>>;

  public:
    /// Walks the objects in order; dereferences to the shared pointer.
    class Iterator {
      public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = Pointer;
        using difference_type = std::ptrdiff_t;
        using pointer = const Pointer*;
        using reference = const Pointer&;

        Iterator() = default;
        explicit Iterator(typename Nodes::const_iterator at) : at_(at) {}
        reference operator*() const { return (*at_)->item; }
        pointer operator->() const { return &(*at_)->item; }
        Iterator& operator++() { return ++at_, *this; }
        Iterator operator++(int) { return Iterator(at_++); }
        friend bool operator==(const Iterator&, const Iterator&) = default;

      private:
        typename Nodes::const_iterator at_;
    };
    Iterator begin() const { return CloseHoles(), Iterator(nodes_.begin()); }
    Iterator end() const { return CloseHoles(), Iterator(nodes_.end()); }

  private:
    bool TryInsert(std::size_t index, std::string_view key, const Pointer& item) {
        auto node = std::make_unique<Node>(Node{String(key), item});
        if (!TryAddKey(*node)) return false;
        nodes_.insert(nodes_.begin() + static_cast<std::ptrdiff_t>(index), std::move(node));
        NumberFrom(index);
        return true;
    }

    /// Takes in the key of an entry to come. A short list has no hash, its keys are searched one by
    /// one. The hash looks into the nodes, which never move.
    bool TryAddKey(Node& added) {
        if (byKey_.empty()) {
            if (SearchNode(added.key)) return false;
            if (nodes_.size() < kSearched) return true;
            for (const auto& node : nodes_)
                if (node) byKey_.emplace(node->key, node.get());
        }
        return byKey_.try_emplace(added.key, &added).second;
    }

    void NumberFrom(std::size_t index) const {
        for (; index < nodes_.size(); ++index)
            nodes_[index]->index = index;
    }

    bool IsEntry(std::size_t index) const { return index < nodes_.size() && nodes_[index]; }

    /// Makes the indexes positions again.
    void CloseHoles() const {
        if (holes_ == 0) return;
        nodes_.erase(std::remove(nodes_.begin() + static_cast<std::ptrdiff_t>(firstHole_),
                                 nodes_.end(), nullptr),
                     nodes_.end());
        NumberFrom(firstHole_);
        holes_ = 0;
    }

    std::size_t IndexOf(Long position) const {
        if (position < 1 || position > Count()) Raise(ErrorNumber::SubscriptOutOfRange);
        CloseHoles();
        return static_cast<std::size_t>(position - 1);
    }
    const Node* FindNode(std::string_view key) const {
        if (IsEntry(expected_) && EqualNoCase(nodes_[expected_]->key, key))
            return nodes_[expected_++].get();
        const Node* const node = byKey_.empty() ? SearchNode(key) : HashedNode(key);
        if (node) expected_ = node->index + 1;
        return node;
    }
    const Node* SearchNode(std::string_view key) const {
        for (const auto& node : nodes_)
            if (node && EqualNoCase(node->key, key)) return node.get();
        return nullptr;
    }
    const Node* HashedNode(std::string_view key) const {
        const auto found = byKey_.find(key);
        return found == byKey_.end() ? nullptr : found->second;
    }
    const Node& NodeOf(std::string_view key) const {
        const Node* const node = FindNode(key);
        if (!node) Raise(ErrorNumber::InvalidProcedureCall);
        return *node;
    }

    static constexpr std::size_t kSearched = 8;

    // Removing by key leaves a hole, which is closed before positions are asked for.
    mutable Nodes nodes_;
    mutable std::size_t holes_ = 0;
    mutable std::size_t firstHole_ = 0; ///< where there are holes
    std::unordered_map<std::string_view, Node*, Hash, Equal> byKey_;
    mutable std::size_t expected_ = 0; ///< where the next look-up tries first
};

} // namespace zorvane
