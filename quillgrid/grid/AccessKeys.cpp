#include "quillgrid/grid/AccessKeys.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/cells/CellAccess.h"

namespace quillgrid {

namespace {

char32_t KeyOf(const Cell& cell) {
    return static_cast<char32_t>(CellAccess::Label(cell).AccessKey());
}

} // namespace

void AccessKeys::Update() {
    std::u32string keys;
    for (const auto& cell : state_.Rows.All()) {
        if (const char32_t key = KeyOf(*cell); key != 0) keys += key;
    }
    if (keys == told_) return;
    told_ = keys;
    site_.SetAccessKeys(keys);
}

bool AccessKeys::Press(char32_t key) {
    if (state_.Terminated || key == 0) return false;
    for (std::int32_t row = 1; row <= state_.RowCount(); ++row) {
        if (KeyOf(*state_.RowCell(row)) == ToLower(key)) return selector_.Select(row);
    }
    return false;
}

} // namespace quillgrid
