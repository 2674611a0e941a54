#include "quillgrid/cells/Listitems.h"

#include "quillgrid/base/Text.h"

#include <algorithm>

namespace quillgrid {

namespace {

constexpr std::uint64_t PauseMilliseconds = 500;
constexpr std::size_t LongestSearchText = 20;

} // namespace

Listitems::Pointer Listitems::Add(ListitemArguments arguments) {
    auto entry = std::make_shared<quillgrid::Listitem>();
    entry->itemData_ = arguments.ItemData ? std::move(*arguments.ItemData) : Variant(arguments.Text);
    entry->text_ = std::move(arguments.Text);
    entry->indent_ = arguments.Indent;
    entry->index_ = Count() + 1;
    if (!images_) images_ = std::make_shared<std::size_t>(0);
    entry->imagesOfList_ = images_;
    if (arguments.ListImage) entry->SetListImage(std::move(*arguments.ListImage));
    entries_.push_back(entry);
    return entry;
}

void Listitems::Clear() {
    entries_.clear();
    images_.reset(); // entries that somebody still holds count for themselves
}

void Listitems::Remove(std::size_t position) {
    const Pointer entry = At(position);
    if (!entry) return;
    if (entry->HasImage()) --*images_;
    entry->imagesOfList_.reset();
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(position - 1));
}

Listitems::Pointer Listitems::Listitem() {
    if (!spare_) spare_ = std::make_shared<quillgrid::Listitem>();
    return spare_;
}

std::int32_t Listitems::PositionOfData(const Variant& value) const {
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        if (EqualAsText(entries_[i]->itemData_, value)) return static_cast<std::int32_t>(i + 1);
    }
    return 0;
}

std::int32_t Listitems::TypeAhead(std::int32_t current, char32_t character, std::uint64_t tick) {
    ExtendSearchText(character, tick);
    const std::size_t chosen = current > 0 ? static_cast<std::size_t>(current) : 0;
    const auto* match = FirstMatch(chosen + 1, entries_.size());
    if (!match && chosen > 1) match = FirstMatch(1, std::min(chosen - 1, entries_.size()));
    if (match) return match->index_;
    searchText_.clear();
    return current;
}

void Listitems::ExtendSearchText(char32_t character, std::uint64_t tick) {
    const bool paused = !lastKeyTick_ || tick - *lastKeyTick_ >= PauseMilliseconds;
    if (paused || CharacterCount(searchText_) >= LongestSearchText) searchText_.clear();
    AppendUtf8(searchText_, character);
    lastKeyTick_ = tick;
}

const Listitem* Listitems::FirstMatch(std::size_t from, std::size_t to) const {
    for (std::size_t position = from; position <= to; ++position) {
        const auto& entry = *entries_[position - 1];
        if (StartsWithIgnoreCase(entry.text_, searchText_)) return &entry;
    }
    return nullptr;
}

} // namespace quillgrid
