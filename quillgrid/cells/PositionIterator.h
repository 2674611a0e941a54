#pragma once

#include <cstddef>
#include <iterator>
#include <memory>

namespace quillgrid {

/// Walks a collection by position and asks for its size anew at each step, so that a loop whose body adds,
/// removes or clears members ends in good order. Each member is held while the body works on it.
template <typename Collection, typename T>
class PositionIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = std::shared_ptr<T>;
    using difference_type = std::ptrdiff_t;
    using pointer = const value_type*;
    using reference = value_type;

    PositionIterator() = default;
    explicit PositionIterator(const Collection& collection) : collection_(&collection) {}

    value_type operator*() const { return collection_->At(position_); }
    PositionIterator& operator++() {
        ++position_;
        return *this;
    }
    PositionIterator operator++(int) {
        auto before = *this;
        ++position_;
        return before;
    }
    bool AtEnd() const { return !collection_ || position_ > collection_->Size(); }
    friend bool operator==(const PositionIterator& left, const PositionIterator& right) {
        if (left.AtEnd() || right.AtEnd()) return left.AtEnd() == right.AtEnd();
        return left.position_ == right.position_;
    }

private:
    const Collection* collection_ = nullptr;
    std::size_t position_ = 1;
};

} // namespace quillgrid
