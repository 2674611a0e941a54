#include "quillgrid/hosts/qt/CellDesign.h"

#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace quillgrid::qt {

namespace {

constexpr std::int32_t LongestText = 32767;
constexpr const char* WithTime = "General Date";

struct TypeRow {
    QMetaType::Type Type = QMetaType::UnknownType;
    CellTemplateConstants Template = qgctNone;
    std::optional<double> Min{};
    std::optional<double> Max{};
};

template <typename T>
constexpr double Least = static_cast<double>(std::numeric_limits<T>::min());
template <typename T>
constexpr double Most = static_cast<double>(std::numeric_limits<T>::max());

// Whole-number cells hold 32 bits; larger numbers are exact in a double up to 53.
constexpr TypeRow Rows[] = {
    {QMetaType::Bool, qgctboolean},
    {QMetaType::SChar, qgctInteger, Least<signed char>, Most<signed char>},
    {QMetaType::UChar, qgctInteger, 0, Most<unsigned char>},
    {QMetaType::Short, qgctInteger, Least<short>, Most<short>},
    {QMetaType::UShort, qgctInteger, 0, Most<unsigned short>},
    {QMetaType::Int, qgctInteger},
    {QMetaType::UInt, qgctNumber, 0, Most<unsigned>},
    {QMetaType::Long, qgctNumber},
    {QMetaType::ULong, qgctNumber, 0},
    {QMetaType::LongLong, qgctNumber},
    {QMetaType::ULongLong, qgctNumber, 0},
    {QMetaType::Float, qgctNumber},
    {QMetaType::Double, qgctNumber},
    {QMetaType::QDate, qgctDate},
    {QMetaType::QTime, qgctTime},
    {QMetaType::QColor, qgctColor},
};

const TypeRow* FindRow(QMetaType type) {
    const auto* found = std::find_if(std::begin(Rows), std::end(Rows),
                                     [type](const TypeRow& row) { return row.Type == type.id(); });
    return found == std::end(Rows) ? nullptr : found;
}

CellTemplateConstants TemplateFor(const FieldType& type) {
    if (type.Enum.isValid()) return type.Enum.isFlag() ? qgctNone : qgctlist;
    const TypeRow* row = FindRow(type.Type);
    return row ? row->Template : qgctNone;
}

void OfferNames(Cell& cell, const QMetaEnum& names) {
    for (int i = 0; i < names.keyCount(); ++i) {
        cell.Listitems().Add({.Text = FromQString(CaptionOfName(QString::fromLatin1(names.key(i)))),
                              .ItemData = static_cast<std::int32_t>(names.value(i))});
    }
}

bool IsTextOrMoment(const FieldType& type) {
    const int id = type.Type.id();
    return !type.Type.isValid() || id == QMetaType::QString || id == QMetaType::QDate ||
           id == QMetaType::QTime || id == QMetaType::QDateTime || id == QMetaType::QColor ||
           id == QMetaType::QUrl;
}

void Refine(Cell& cell, const CellDesign& design) {
    const bool isText = cell.Style() == qgcsText && cell.ValidationRule() == qgvrNone;
    if (isText) cell.SetMaxLength(design.MaxLength <= 0 ? LongestText : design.MaxLength);
    if (design.Type.Type.id() == QMetaType::QDateTime) cell.SetFormat(WithTime);
    cell.SetAllowEmpty(design.Type.Nullable || IsTextOrMoment(design.Type));
    if (design.Type.Enum.isValid()) {
        if (!design.Type.Enum.isFlag()) OfferNames(cell, design.Type.Enum);
        return;
    }
    const TypeRow* row = FindRow(design.Type.Type);
    if (row && row->Min) cell.SetMin(*row->Min);
    if (row && row->Max) cell.SetMax(*row->Max);
}

/// Whether a word begins at a character of a name.
bool BeginsWord(const QString& name, qsizetype at) {
    if (at == 0 || !name[at].isUpper()) return false;
    return name[at - 1].isLower() || name[at - 1].isDigit() ||
           (at + 1 < name.size() && name[at - 1].isUpper() && name[at + 1].isLower());
}

/// "URL" stays as it is, "Date" goes on in small letters.
bool IsShouted(const QString& name, qsizetype at) {
    return at + 1 >= name.size() ? at > 0 && name[at - 1].isUpper() : name[at + 1].isUpper();
}

} // namespace

QString CaptionOfName(const QString& name) {
    QString caption;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const bool begins = BeginsWord(name, i);
        if (begins) caption += u' ';
        const QChar letter = name[i] == u'_' ? QChar(u' ') : name[i];
        caption += begins && !IsShouted(name, i) ? letter.toLower() : letter;
    }
    caption = caption.simplified();
    return caption.left(1).toUpper() + caption.mid(1);
}

bool HasCell(const FieldType& type) {
    const QMetaType text = QMetaType::fromType<QString>();
    return TemplateFor(type) != qgctNone || type.Enum.isValid() || !type.Type.isValid() ||
           (QMetaType::canConvert(type.Type, text) && QMetaType::canConvert(text, type.Type));
}

void AddCell(QuillgridWidget& form, const CellDesign& design) {
    Quillgrid& grid = form.grid();
    const std::string key = FromQString(design.Key);
    if (key.empty() || grid.Cells().Find(key)) return;
    const QString caption = design.Caption.isEmpty() ? CaptionOfName(design.Key) : design.Caption;
    const auto cell =
        grid.Add({.Key = key,
                  .Caption = FromQString(QString(caption).remove(u'&')), // no access key is meant
                  .CellTemplate = TemplateFor(design.Type)});
    Refine(*cell, design);
}

} // namespace quillgrid::qt
