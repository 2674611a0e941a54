// What property bags that keep Qt's values have in common.
#pragma once

#include "quillgrid/base/Variant.h"
#include "quillgrid/platform/Font.h"

#include <QVariant>

#include <functional>

namespace quillgrid::qt {

/// Whether a bag may leave `value` out: numbers and booleans are compared as numbers whatever their width
/// (false is 0, true is -1), fonts field by field, texts exactly.
bool MeansTheSame(const Variant& value, const Variant& fallback);

/// What a bag kept, in the type that `fallback` asks for: where it is no text, a text that spells a number or
/// a truth value is one, since some stores keep nothing but texts. Whole numbers become 32-bit integers.
/// `fallback` for what cannot be a property.
Variant FromStored(const QVariant& stored, const Variant& fallback);

/// What a bag keeps of a value; invalid for what it cannot keep (Null, numbers that are none, objects).
QVariant ToStored(const Variant& value);

/// The font in an object, null when it holds none.
const Font* FontIn(const Variant& value);
Variant ToVariant(const Font& font);

/// A font is kept as four fields. `Field` gives what is kept under "family", "size", "bold" or "italic"; what
/// is missing or broken is as in `fallback`.
Font FontFromFields(const std::function<QVariant(const QString& name)>& field, const Font& fallback);
/// Hands the four fields over.
void FieldsOf(const Font& font, const std::function<void(const QString& name, const QVariant& value)>& take);

} // namespace quillgrid::qt
