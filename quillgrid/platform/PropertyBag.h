#pragma once

#include "quillgrid/base/Variant.h"

#include <string_view>

namespace quillgrid {

/// Where a form keeps the properties of the control. Keys are compared without regard to case; a font travels
/// as an object holding a `Font`.
class PropertyBag {
public:
    virtual ~PropertyBag() = default;

    /// The value kept under the key, else the default.
    virtual Variant Read(std::string_view key, const Variant& fallback) const = 0;
    /// Keeps the value; one that equals the default may be left out.
    virtual void Write(std::string_view key, const Variant& value, const Variant& fallback) = 0;
};

} // namespace quillgrid
