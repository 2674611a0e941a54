#pragma once

#include "quillgrid/base/DateTime.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/base/Variant.h"

#include <QVariant>

#include <optional>

class QDateTime;

namespace quillgrid::qt {

/// Whole numbers beyond 32 bits become doubles where these are exact, else text; dates outside years 100 to
/// 9999 become ISO text; null and invalid variants become Null; anything else what Qt converts to text.
/// Milliseconds of times are dropped.
QUILLGRID_EXPORT Variant VariantFromQt(const QVariant& value);

/// Currency becomes a double where that keeps every digit, else text; a date without time a QDate, a time of
/// day 0 a QTime, other dates a QDateTime of local time; empty, Null and objects an invalid variant.
QUILLGRID_EXPORT QVariant ToQVariant(const Variant& value);

/// Nothing outside years 100 to 9999 and for invalid dates.
QUILLGRID_EXPORT std::optional<DateTime> DateTimeFromQt(const QDateTime& value);

} // namespace quillgrid::qt
