#pragma once

#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/locale/Locale.h"

#include <QVariant>

#include <optional>

namespace quillgrid::qt {

/// The date, the time or both that a text writes in the ISO form, as databases without such types keep them.
std::optional<DateTime> MomentInText(const QString& text);

/// A cell's value as a QDate, QTime or QDateTime; what a cell of that rule cannot show comes from `former`.
/// Nothing for texts that are no date, for a date where only a time is wanted and the reverse.
std::optional<QVariant> MomentFromCell(const Variant& value, ValidationRuleConstants rule, QMetaType type,
                                       const QVariant& former, const Locale& locale);

} // namespace quillgrid::qt
