#pragma once

#include "quillgrid/base/Event.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/base/Variant.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quillgrid {

/// One line of a property sheet. It keeps no copy of the property that it stands for: whoever listens to its
/// events sets that property when `Value` is written and supplies it when `Value` is read. Made by
/// `Properties::Add`.
class QUILLGRID_EXPORT Property : public std::enable_shared_from_this<Property> {
public:
    /// `Value` is being written: the key and the new value, which a listener may change. Throwing keeps the
    /// old one.
    Event<const std::string&, Variant&> Changed;
    /// `Value` is being read: the key and the stored value, which a listener may replace.
    Event<const std::string&, Variant&> QueryValue;

    const std::string& Key() const { return key_; }
    /// Raises QueryValue; Null when nothing was ever stored.
    Variant Value();
    /// Raises Changed, then stores.
    void SetValue(Variant value);
    const std::string& Description() const { return description_; }
    void SetDescription(std::string text) { description_ = std::move(text); }
    /// 1-based position in its collection.
    std::int32_t Index() const { return index_; }

private:
    friend class Properties;

    std::string key_;
    std::string description_;
    std::optional<Variant> value_;
    std::int32_t index_ = 0;
};

} // namespace quillgrid
