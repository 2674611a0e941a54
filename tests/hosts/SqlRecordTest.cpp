#include "quillgrid/hosts/qtsql/SqlRecord.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QDate>
#include <QSqlField>

#include <gtest/gtest.h>

namespace quillgrid::qt {
namespace {

QSqlField FieldOf(const char* name, const QVariant& value) {
    QSqlField field(QString::fromLatin1(name), value.metaType());
    field.setValue(value);
    return field;
}

TEST(SqlRecord, FieldsAreFoundInAnyCaseAndKeepTheirMeaning) {
    QSqlRecord record;
    record.append(FieldOf("Name", QStringLiteral("Müller")));
    record.append(FieldOf("count", 5LL));
    record.append(FieldOf("born", QDate(1815, 12, 10)));
    record.append(QSqlField(QStringLiteral("note"), QMetaType(QMetaType::QString)));
    const SqlRecord adapter(record);
    EXPECT_EQ(adapter.Field("NAME"), Variant("Müller"));
    EXPECT_EQ(adapter.Field("Count"), Variant(5));
    EXPECT_EQ(adapter.Field("born"), Variant(DateTime{*DayFromParts(1815, 12, 10), 0}));
    EXPECT_EQ(adapter.Field("note"), Variant::Null());
    EXPECT_EQ(adapter.Field("missing"), std::nullopt);
    EXPECT_EQ(adapter.Field("\xFF"), std::nullopt);
    EXPECT_EQ(SqlRecord(QSqlRecord()).Field(""), std::nullopt);
}

TEST(SqlRecord, FillsAForm) {
    QuillgridWidget form;
    form.grid().Add({.Key = "NAME", .Value = "before"});
    form.grid().Add({.Key = "note", .Value = "before"});
    form.grid().Add({.Key = "other", .Value = "kept"});
    QSqlRecord record;
    record.append(FieldOf("name", QStringLiteral("Ada")));
    record.append(QSqlField(QStringLiteral("note"), QMetaType(QMetaType::QString)));
    form.grid().LoadRecord(SqlRecord(record));
    EXPECT_EQ(form.grid().Cells().Item("name")->Value(), Variant("Ada"));
    EXPECT_EQ(form.grid().Cells().Item("note")->Text(), "");
    EXPECT_EQ(form.grid().Cells().Item("other")->Value(), Variant("kept"));
}

} // namespace
} // namespace quillgrid::qt
