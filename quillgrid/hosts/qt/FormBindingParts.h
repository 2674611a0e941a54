#pragma once

#include "quillgrid/hosts/qt/BoundField.h"
#include "quillgrid/hosts/qt/FormBinding.h"

#include <QPointer>

#include <cstddef>
#include <vector>

namespace quillgrid::qt {

struct FormBinding::Parts {
    QPointer<QObject> Form;
    std::vector<Field> Fields;
    SubmitPolicy Policy = AutoSubmit;
    bool ToldDirty = false;
    std::size_t Lost = 0; ///< how many inputs went with what was bound
    Connection KeyReleased;
};

} // namespace quillgrid::qt
