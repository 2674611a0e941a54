#include "quillgrid/grid/GridProperty.h"

namespace quillgrid {

Variant PropertyDefault::Value(const Font& ambient) const {
    switch (Type) {
    case Kind::AmbientFont: return ToPropertyValue(ambient);
    case Kind::Flag: return Variant(Number != 0);
    case Kind::Short: return Variant(static_cast<std::int16_t>(Number));
    case Kind::Long: return Variant(Number);
    case Kind::Text: return Variant(Words);
    }
    return Variant();
}

} // namespace quillgrid
