#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/locale/Locale.h"

#include <QLocale>
#include <QString>

namespace quillgrid::qt {

/// The control's own locale for a language and country that it knows, otherwise one made of what Qt knows.
/// Short dates have a four-digit year and are numbers only, so that they can be typed again; texts are
/// ordered as the language orders them.
QUILLGRID_EXPORT Locale LocaleFromQt(const QLocale& locale);

/// A date or time pattern of Qt in the control's letters. Time zones are left out; "/" and ":" keep their
/// meaning only where they are the locale's own separators.
QUILLGRID_EXPORT std::string PatternFromQt(const QString& pattern, const std::string& dateSeparator,
                                           const std::string& timeSeparator);

} // namespace quillgrid::qt
