#include "quillgrid/locale/Locale.h"

#include "quillgrid/base/Text.h"

namespace quillgrid {

int Locale::Compare(std::string_view left, std::string_view right) const {
    return CompareText ? CompareText(left, right) : CompareIgnoreCase(left, right);
}

} // namespace quillgrid
