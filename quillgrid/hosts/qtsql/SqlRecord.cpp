#include "quillgrid/hosts/qtsql/SqlRecord.h"

#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/VariantConversion.h"

namespace quillgrid::qt {

std::optional<Variant> SqlRecord::Field(std::string_view name) const {
    const int index = record_.indexOf(ToQString(name));
    if (index < 0) return std::nullopt;
    return record_.isNull(index) ? Variant::Null() : VariantFromQt(record_.value(index));
}

} // namespace quillgrid::qt
