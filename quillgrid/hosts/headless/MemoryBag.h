#pragma once

#include "quillgrid/base/Text.h"
#include "quillgrid/platform/PropertyBag.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace quillgrid::headless {

/// A bag that keeps everything it is given, defaults too, in the order of writing, and knows what was asked.
class MemoryBag : public PropertyBag {
public:
    struct Entry {
        std::string Key;
        Variant Value;
        Variant Default;
    };
    std::vector<Entry> Entries;
    mutable std::vector<std::string> Asked;

    Variant Read(std::string_view key, const Variant& fallback) const override {
        Asked.emplace_back(key);
        const auto* entry = Find(key);
        return entry ? entry->Value : fallback;
    }
    void Write(std::string_view key, const Variant& value, const Variant& fallback) override {
        Entries.push_back({std::string(key), value, fallback});
    }
    const Entry* Find(std::string_view key) const {
        const auto found = std::find_if(Entries.begin(), Entries.end(), [key](const Entry& entry) {
            return EqualIgnoreCase(entry.Key, key);
        });
        return found == Entries.end() ? nullptr : &*found;
    }
};

} // namespace quillgrid::headless
