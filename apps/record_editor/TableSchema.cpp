#include "apps/record_editor/TableSchema.h"

namespace quillgrid::editor {

qsizetype TableSchema::IndexOf(const QString& name) const {
    for (qsizetype i = 0; i < Columns.size(); ++i) {
        if (Columns[i].Name == name) return i;
    }
    return -1;
}

const Column* TableSchema::Find(const QString& name) const {
    const auto index = IndexOf(name);
    return index < 0 ? nullptr : &Columns[index];
}

} // namespace quillgrid::editor
