#include "apps/record_editor/ColumnDescription.h"

#include "apps/record_editor/ColumnRules.h"

#include "quillgrid/hosts/qt/VariantConversion.h"

#include <algorithm>
#include <array>

namespace quillgrid::editor {
namespace {

/// The template is applied first and brings rule and style along, which are the column's affair; the rest
/// belongs to the record shown, or is read as a value of the column.
constexpr std::array NotTheDictionarys{"template", "validationrule", "style",    "key",
                                       "index",    "value",          "default",  "undovalue",
                                       "changed",  "errorcode",      "itemdata", "listindex"};

constexpr std::array Bounds{"min", "max"};

// A value that does not fit is shown as plain text, which these would cut, colour or refuse.
constexpr std::array ForFittingValues{
    "caption",          "min",       "max",         "maxlength",  "charlist", "charcase",
    "alignment",        "button",    "listimage",   "unit",       "format",   "fillcolor",
    "causesvalidation", "increment", "showpercent", "fontitalic", "step",     "allowempty"};

template <std::size_t N>
bool Contains(const std::array<const char*, N>& names, const QString& name) {
    return std::any_of(names.begin(), names.end(),
                       [&](const char* listed) { return name == QLatin1String(listed); });
}

/// Numbers that a dictionary of texts holds are written as SQL writes them, not as the user's locale does.
/// One that reads the same as a text may be handed out as a number: "007" may not.
Variant FromText(const QString& text) {
    bool isNumber = false;
    const qlonglong number = text.toLongLong(&isNumber);
    if (isNumber && QString::number(number) == text) return quillgrid::qt::VariantFromQt(number);
    return Variant(text.toStdString());
}

} // namespace

std::optional<Variant> ColumnDescription::Field(std::string_view name) const {
    const QString key = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())).toLower();
    const auto field = fields_.constFind(key);
    if (field == fields_.constEnd() || Contains(NotTheDictionarys, key)) return std::nullopt;
    if (Contains(Bounds, key)) {
        Variant bound = BoundFromText(field->toString(), kind_);
        return bound.IsNull() ? std::nullopt : std::optional(std::move(bound));
    }
    const bool isText = field->typeId() == QMetaType::QString;
    return isText ? FromText(field->toString()) : quillgrid::qt::VariantFromQt(*field);
}

FieldValue ColumnDescription::Default() const {
    const auto field = fields_.constFind(QStringLiteral("default"));
    if (field == fields_.constEnd()) return {};
    const QString text = field->toString();
    bool isNumber = false;
    const qlonglong number = text.toLongLong(&isNumber);
    if (isNumber) return {FieldValue::Storage::Integer, number, text};
    return {FieldValue::Storage::Text, text, text};
}

ColumnDescription ColumnDescription::ForAnyValue() const {
    ColumnDescription rest = *this;
    for (const char* name : ForFittingValues)
        rest.fields_.remove(QLatin1String(name));
    return rest;
}

} // namespace quillgrid::editor
