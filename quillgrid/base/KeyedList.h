#pragma once

#include "quillgrid/base/Text.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace quillgrid {

/// An ordered list of shared objects with 1-based positions and optional unique keys compared without regard
/// to case. Appending and looking up are constant time; inserting and removing move what follows.
/// Nothing here throws for a missing or duplicate key: callers decide what that means.
template <typename T>
class KeyedList {
public:
    using Pointer = std::shared_ptr<T>;

    KeyedList() = default;
    KeyedList(KeyedList&&) noexcept = default;
    KeyedList& operator=(KeyedList other) noexcept {
        std::swap(items_, other.items_);
        std::swap(keys_, other.keys_);
        return *this;
    }
    ~KeyedList() { Clear(); }

    std::size_t Count() const { return items_.size(); }
    bool IsEmpty() const { return items_.empty(); }

    /// The item at a position 1..Count, or nothing.
    Pointer At(std::size_t position) const {
        return position >= 1 && position <= items_.size() ? items_[position - 1] : nullptr;
    }
    /// The item under a key, or nothing.
    Pointer Find(std::string_view key) const {
        if (!keys_) return nullptr;
        const auto found = keys_->Items.find(key);
        return found == keys_->Items.end() ? nullptr : found->second;
    }
    bool Contains(std::string_view key) const { return keys_ && keys_->Items.contains(key); }

    /// Inserts before `position` (appends when it is not within 1..Count); an empty key means none. False,
    /// and nothing changed, when the key is taken.
    bool Insert(std::size_t position, std::string_view key, Pointer item) {
        const std::string* const stored = key.empty() ? nullptr : AddKey(key, item);
        if (!key.empty() && !stored) return false;
        const bool inside = position >= 1 && position <= items_.size();
        const auto before = static_cast<std::ptrdiff_t>(inside ? position - 1 : items_.size());
        if (keys_) keys_->OfPositions.insert(keys_->OfPositions.begin() + before, stored);
        items_.insert(items_.begin() + before, std::move(item));
        return true;
    }
    bool Append(std::string_view key, Pointer item) { return Insert(0, key, std::move(item)); }
    /// Other items, all without keys.
    void Assign(std::vector<Pointer> items) {
        Clear();
        items_ = std::move(items);
    }

    /// Removes and returns the item at a position, or nothing.
    Pointer RemoveAt(std::size_t position);
    /// 1-based position of an item, 0 when it is not in the list. Linear.
    std::size_t PositionOf(const T* item) const;

    void Clear() {
        // The members may call back while they end: they must find an empty list, not a half-cleared one.
        const auto items = std::exchange(items_, {});
        const auto keys = std::exchange(keys_, nullptr); // ends first: not the hashes order the end
    }

    const std::vector<Pointer>& Items() const { return items_; }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return HashIgnoreCase(text); }
    };
    struct Equal {
        using is_transparent = void;
        bool operator()(std::string_view left, std::string_view right) const {
            return EqualIgnoreCase(left, right);
        }
    };

    /// Made for the first key: most lists have none, and many are empty.
    struct Keys {
        std::unordered_map<std::string, Pointer, Hash, Equal> Items;
        std::vector<const std::string*> OfPositions; ///< keys of `Items`; null for an item without one
    };

    /// The key as it is kept, or nothing when it is taken.
    const std::string* AddKey(std::string_view key, const Pointer& item) {
        if (!keys_) {
            keys_ = std::make_unique<Keys>();
            keys_->OfPositions.resize(items_.size());
        }
        const auto [entry, added] = keys_->Items.try_emplace(std::string(key), item);
        return added ? &entry->first : nullptr;
    }

    std::vector<Pointer> items_;
    std::unique_ptr<Keys> keys_;
};

template <typename T>
typename KeyedList<T>::Pointer KeyedList<T>::RemoveAt(std::size_t position) {
    Pointer item = At(position);
    if (!item) return nullptr;
    const auto offset = static_cast<std::ptrdiff_t>(position - 1);
    items_.erase(items_.begin() + offset);
    if (!keys_) return item;
    const auto key = keys_->OfPositions.begin() + offset;
    if (*key) keys_->Items.erase(keys_->Items.find(**key));
    keys_->OfPositions.erase(key);
    return item;
}

template <typename T>
std::size_t KeyedList<T>::PositionOf(const T* item) const {
    for (std::size_t i = 0; i < items_.size(); ++i) {
        if (items_[i].get() == item) return i + 1;
    }
    return 0;
}

} // namespace quillgrid
