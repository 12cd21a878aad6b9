#pragma once

#include "runtime/RuntimeError.h"
#include "runtime/Text.h"
#include "runtime/Types.h"

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

    Long Count() const { return static_cast<Long>(nodes_.size()); }

    void Append(std::string_view key, Pointer item) { Insert(nodes_.size(), key, std::move(item)); }

    /// Inserts so that the entry stands directly after `position`; position 0 is the front.
    void InsertAfter(Long position, std::string_view key, Pointer item) {
        if (position < 0 || position > Count()) Raise(ErrorNumber::SubscriptOutOfRange);
        Insert(static_cast<std::size_t>(position), key, std::move(item));
    }

    /// Inserts so that the entry takes the place of the one at `position`.
    void InsertBefore(Long position, std::string_view key, Pointer item) {
        Insert(IndexOf(position), key, std::move(item));
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

    /// The object behind the one found last when its key is these two parts in a row, or null: a
    /// quick first try for look-ups in list order, which need not join the parts then.
    T* FindNext(std::string_view first, std::string_view rest) const {
        if (expected_ >= nodes_.size()) return nullptr;
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
        const Node* const node = FindNode(key);
        return node ? PositionOf(*node) : 0;
    }

    void Remove(Long position) {
        const std::size_t index = IndexOf(position);
        byKey_.erase(nodes_[index]->key);
        nodes_.erase(nodes_.begin() + static_cast<std::ptrdiff_t>(index));
        NumberFrom(index);
    }
    void Remove(std::string_view key) { Remove(PositionOf(NodeOf(key))); }

    void Clear() {
        byKey_.clear();
        nodes_.clear();
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
    Iterator begin() const { return Iterator(nodes_.begin()); }
    Iterator end() const { return Iterator(nodes_.end()); }

  private:
    void Insert(std::size_t index, std::string_view key, Pointer item) {
        if (FindNode(key)) Raise(ErrorNumber::DuplicateKey);
        auto node = std::make_unique<Node>(Node{String(key), std::move(item)});
        nodes_.insert(nodes_.begin() + static_cast<std::ptrdiff_t>(index), std::move(node));
        NumberFrom(index);
        HashKeys(index);
    }

    /// Keeps the hash up with a new entry; a short list has none, its keys are searched one by one.
    /// The hash looks into the nodes, which never move.
    void HashKeys(std::size_t added) {
        if (!byKey_.empty()) {
            byKey_.emplace(nodes_[added]->key, nodes_[added].get());
        } else if (nodes_.size() > kSearched) {
            for (const auto& node : nodes_)
                byKey_.emplace(node->key, node.get());
        }
    }

    void NumberFrom(std::size_t index) {
        for (; index < nodes_.size(); ++index)
            nodes_[index]->index = index;
    }

    std::size_t IndexOf(Long position) const {
        if (position < 1 || position > Count()) Raise(ErrorNumber::SubscriptOutOfRange);
        return static_cast<std::size_t>(position - 1);
    }
    const Node* FindNode(std::string_view key) const {
        if (expected_ < nodes_.size() && EqualNoCase(nodes_[expected_]->key, key))
            return nodes_[expected_++].get();
        const Node* const node = byKey_.empty() ? SearchNode(key) : HashedNode(key);
        if (node) expected_ = node->index + 1;
        return node;
    }
    const Node* SearchNode(std::string_view key) const {
        for (const auto& node : nodes_)
            if (EqualNoCase(node->key, key)) return node.get();
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
    static Long PositionOf(const Node& node) { return static_cast<Long>(node.index) + 1; }

    static constexpr std::size_t kSearched = 8;

    Nodes nodes_;
    std::unordered_map<std::string_view, Node*, Hash, Equal> byKey_;
    mutable std::size_t expected_ = 0; ///< where the next look-up tries first
};

} // namespace zorvane
