#include "quillgrid/cells/Property.h"

namespace quillgrid {

Variant Property::Value() {
    const auto alive = weak_from_this().lock();
    Variant value = value_.value_or(Variant());
    QueryValue.Raise(key_, value);
    if (!value_ && value.IsEmpty()) value = Variant::Null();
    value_ = value;
    return value;
}

void Property::SetValue(Variant value) {
    const auto alive = weak_from_this().lock();
    Changed.Raise(key_, value);
    value_ = std::move(value);
}

} // namespace quillgrid
