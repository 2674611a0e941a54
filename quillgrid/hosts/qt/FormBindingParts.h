#pragma once

#include "quillgrid/hosts/qt/BoundField.h"
#include "quillgrid/hosts/qt/FormBinding.h"

#include <QPointer>

#include <vector>

namespace quillgrid::qt {

struct FormBinding::Parts {
    QPointer<QObject> Form;
    Locale UserLocale;
    std::vector<Field> Fields;
    SubmitPolicy Policy = AutoSubmit;
    bool ToldDirty = false;
    Connection KeyReleased;
};

} // namespace quillgrid::qt
