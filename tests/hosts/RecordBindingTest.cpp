#include "quillgrid/hosts/qtsql/RecordBinding.h"

#include "quillgrid/hosts/qt/ModelBinding.h"
#include "tests/hosts/BoundForm.h"

#include <QDate>
#include <QSqlDatabase>
#include <QSqlField>
#include <QSqlQuery>
#include <QSqlTableModel>

#include <gtest/gtest.h>

namespace quillgrid::qt {
namespace {

using Told = std::vector<std::string>;

struct Column {
    const char* Name;
    QMetaType::Type Type;
    QVariant Value;
    bool IsRequired = false;
    int Length = -1;
};

/// As SQLite hands it over: dates are text, answers are numbers.
QSqlRecord Customer() {
    const Column columns[] = {{"id", QMetaType::LongLong, 5, true},
                              {"full_name", QMetaType::QString, QStringLiteral("Ada"), true, 20},
                              {"since", QMetaType::QString, QStringLiteral("2024-02-29")},
                              {"balance", QMetaType::QString, QStringLiteral("1234.5")},
                              {"active", QMetaType::LongLong, 1},
                              {"note", QMetaType::QString, {}}};
    QSqlRecord record;
    for (const Column& column : columns) {
        QSqlField field(QString::fromLatin1(column.Name), QMetaType(column.Type));
        field.setRequired(column.IsRequired);
        field.setLength(column.Length);
        if (column.Value.isValid()) field.setValue(column.Value);
        field.setReadOnly(qstrcmp(column.Name, "id") == 0);
        record.append(field);
    }
    return record;
}

class RecordInAForm : public testing::Test {
protected:
    RecordInAForm() {
        form.Listen(binding);
        form.Grid().Add({.Key = "since", .CellTemplate = qgctDate});
        form.Grid().Add({.Key = "balance", .CellTemplate = qgctCurrency});
        form.Grid().Add({.Key = "active", .CellTemplate = qgctboolean});
        binding.setRecord(Customer());
        binding.addCells();
        form.Show();
    }

    BoundForm form;
    RecordBinding binding{form.Widget};
};

TEST_F(RecordInAForm, CellsFollowTheFieldsAndTheFieldsTheCells) {
    EXPECT_TRUE(form.TakeTold().empty());
    EXPECT_EQ(form.At("full_name").Caption(), "Full name");
    EXPECT_EQ(form.At("full_name").MaxLength(), 20);
    EXPECT_TRUE(form.At("id").Locked());
    EXPECT_EQ(form.TextAt("since"), "29.02.2024");
    EXPECT_EQ(form.At("balance").Value(), Variant(*Currency::FromDouble(1234.5)));
    EXPECT_EQ(form.TextAt("active"), "ja");
    EXPECT_FALSE(binding.isModified());
    form.EnterAt("since", QStringLiteral("1.3.2024"));
    form.EnterAt("balance", QStringLiteral("7,25"));
    form.At("active").SetValue(false);
    form.At("full_name").SetValue(Variant::Null());
    EXPECT_TRUE(binding.commitPending());
    const QSqlRecord now = binding.record();
    EXPECT_EQ(now.value(QStringLiteral("since")), QStringLiteral("2024-03-01"));
    EXPECT_EQ(now.value(QStringLiteral("balance")), QStringLiteral("7.25"));
    EXPECT_EQ(now.value(QStringLiteral("active")), 0LL);
    EXPECT_FALSE(now.isNull(QStringLiteral("full_name"))); // the database would refuse NULL
    EXPECT_TRUE(now.isNull(QStringLiteral("note")));
    for (const char* name : {"id", "note"})
        EXPECT_FALSE(now.isGenerated(QString::fromLatin1(name)));
    for (const char* name : {"since", "balance", "active", "full_name"})
        EXPECT_TRUE(now.isGenerated(QString::fromLatin1(name))) << name;
}

TEST_F(RecordInAForm, NullComesAndGoesAndFieldsCanBeSet) {
    form.EnterAt("note", QStringLiteral("x"));
    EXPECT_EQ(binding.record().value(QStringLiteral("note")), QStringLiteral("x"));
    form.At("note").SetValue("");
    form.At("since").SetValue(Variant::Null());
    EXPECT_TRUE(binding.submit());
    EXPECT_TRUE(binding.record().isNull(QStringLiteral("note")));
    EXPECT_TRUE(binding.record().isNull(QStringLiteral("since")));
    EXPECT_TRUE(binding.setValue(QStringLiteral("NOTE"), QStringLiteral("y")));
    EXPECT_EQ(form.TextAt("note"), "y");
    EXPECT_FALSE(binding.setValue(QStringLiteral("id"), 6));
    EXPECT_FALSE(binding.setValue(QStringLiteral("missing"), 6));
    EXPECT_TRUE(binding.setRecord({}));
    EXPECT_EQ(form.TextAt("note") + form.TextAt("active"), "");
    EXPECT_TRUE(form.At("note").Locked());
}

/// A database of its own, in memory.
class TableInAForm : public testing::Test {
protected:
    TableInAForm() : database(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), Name)) {
        database.setDatabaseName(QStringLiteral(":memory:"));
        database.open();
        QSqlQuery query(database);
        query.exec(QStringLiteral("create table people (id integer primary key, age int check (age < 100))"));
        query.exec(QStringLiteral("insert into people values (1, 10), (2, 20)"));
    }
    ~TableInAForm() override {
        database = {};
        QSqlDatabase::removeDatabase(Name);
    }
    int StoredAge(int id) {
        QSqlQuery query(QStringLiteral("select age from people where id = %1").arg(id), database);
        return query.next() ? query.value(0).toInt() : -1;
    }

    static inline const QString Name = QStringLiteral("table in a form");
    QSqlDatabase database;
};

TEST_F(TableInAForm, TheDatabaseHasTheLastWordAboutARow) {
    BoundForm form;
    QSqlTableModel model(nullptr, database);
    model.setTable(QStringLiteral("people"));
    model.setEditStrategy(QSqlTableModel::OnRowChange);
    ASSERT_TRUE(model.select());
    ModelBinding binding(form.Widget);
    form.Listen(binding);
    binding.setModel(&model);
    binding.addCells();
    binding.toFirst();
    form.Show();
    form.EnterAt("age", QStringLiteral("11"));
    EXPECT_EQ(StoredAge(1), 10);
    EXPECT_TRUE(binding.toNext());
    EXPECT_EQ(StoredAge(1), 11);
    form.TakeTold();
    form.TypeAt("age", QStringLiteral("150"));
    EXPECT_FALSE(binding.toPrevious());
    EXPECT_EQ(form.TakeTold(), (Told{"dirty", "clean", "NotTaken  "}));
    EXPECT_EQ(form.TextAt("age"), "150"); // the model has it, the database does not
    binding.revert();
    EXPECT_EQ(form.TextAt("age"), "20");
    EXPECT_TRUE(binding.toPrevious());
    EXPECT_EQ(StoredAge(2), 20);
}

TEST_F(TableInAForm, ARecordWritesItsChangedFieldsOnly) {
    BoundForm form;
    QSqlTableModel model(nullptr, database);
    model.setTable(QStringLiteral("people"));
    model.setEditStrategy(QSqlTableModel::OnManualSubmit);
    ASSERT_TRUE(model.select());
    RecordBinding binding(form.Widget);
    binding.setRecord(model.record(1));
    binding.addCells();
    form.Show();
    form.EnterAt("age", QStringLiteral("21"));
    EXPECT_TRUE(model.setRecord(1, binding.record()));
    EXPECT_TRUE(model.submitAll());
    EXPECT_EQ(StoredAge(2), 21);
    EXPECT_EQ(StoredAge(1), 10);
}

} // namespace
} // namespace quillgrid::qt
