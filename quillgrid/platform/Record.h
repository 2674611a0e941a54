#pragma once

#include "quillgrid/base/Variant.h"

#include <optional>
#include <string_view>

namespace quillgrid {

/// One record of a data source, its fields read by name.
class Record {
public:
    virtual ~Record() = default;

    /// The value of the field with this name (whether case matters is the record's affair), or nothing when
    /// there is no such field or it cannot be read.
    virtual std::optional<Variant> Field(std::string_view name) const = 0;
};

} // namespace quillgrid
