#include "TestDatabase.h"
#include "apps/record_editor/RecordForm.h"

#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QSet>

#include <gtest/gtest.h>

namespace quillgrid::editor {
namespace {

// The sample is the first thing that a new user sees: every value must have its proper cell.
TEST(Sample, EveryValueFitsItsCellInEveryTable) {
    DatabaseAddress address;
    address.File = QStringLiteral(SAMPLE_DATABASE);
    auto database = Database::Open(address);
    ASSERT_TRUE(database) << database.Message().toStdString();
    for (const char* name : {"companies", "countries", "currencies"}) {
        quillgrid::qt::QuillgridWidget widget;
        const auto schema = Schema(**database, QLatin1String(name));
        const auto form = RecordForm::Open(widget.grid(), **database, schema.Name,
                                           {BuiltInLocale("de-DE"), qglgGerman, QStringLiteral("de")});
        ASSERT_TRUE(form) << form.Message().toStdString();
        EXPECT_GE((*form)->Count(), 12);
        for (qsizetype i = 0; i < (*form)->Count(); ++i) {
            ASSERT_TRUE((*form)->Show(i));
            EXPECT_FALSE((*form)->IsModified());
            for (qsizetype c = 0; c < schema.Columns.size(); ++c) {
                const FieldBinding& binding = (*form)->Binding(c);
                const bool noneChosen = binding.Loaded().IsNull();
                EXPECT_TRUE(binding.Fits() || noneChosen)
                    << name << ' ' << i << ' ' << schema.Columns[c].Name.toStdString() << ": "
                    << binding.Loaded().Text.toStdString();
            }
        }
    }
}

TEST(Sample, DictionaryDressesTheFormInTheReadersLanguage) {
    DatabaseAddress address;
    address.File = QStringLiteral(SAMPLE_DATABASE);
    auto database = Database::Open(address);
    ASSERT_TRUE(database);
    quillgrid::qt::QuillgridWidget widget;
    const auto form =
        RecordForm::Open(widget.grid(), **database, Table(**database, QStringLiteral("companies")),
                         {BuiltInLocale("de-DE"), qglgGerman, QStringLiteral("de")});
    ASSERT_TRUE(form);
    ASSERT_TRUE((*form)->Show(0));
    const auto cell = [&](const char* column) { return widget.grid().Cells().Item(column); };
    EXPECT_EQ(cell("opens_at")->Text(), "07:30 Uhr");
    EXPECT_EQ(cell("credit_rating")->Unit(), "Punkte");
    EXPECT_TRUE(cell("name")->FontBold());
    EXPECT_NE(cell("owner_share")->FillColor(), widget.grid().FillColor());
    EXPECT_EQ(widget.grid().Groups().Count(), 4);
    EXPECT_EQ(widget.grid().RowCell(6)->Caption(), "Kontakt");
}

TEST(Sample, UsesEveryKindOfColumn) {
    DatabaseAddress address;
    address.File = QStringLiteral(SAMPLE_DATABASE);
    auto database = Database::Open(address);
    ASSERT_TRUE(database);
    quillgrid::qt::QuillgridWidget widget;
    const auto form =
        RecordForm::Open(widget.grid(), **database, Table(**database, QStringLiteral("companies")),
                         {BuiltInLocale("en-GB"), qglgEnglish, QStringLiteral("en")});
    ASSERT_TRUE(form);
    ASSERT_TRUE((*form)->Show(0));
    QSet<int> used;
    for (const auto& cell : widget.grid().Cells())
        used << cell->Template();
    for (const auto wanted :
         {qgctNone, qgctInteger, qgctCurrency, qgctEuro, qgctDate, qgctTime, qgctboolean, qgctPercent,
          qgctlist, qgctSalutation, qgctPhone, qgctFax, qgctEmail, qgctwww, qgctPassword, qgctColor}) {
        EXPECT_TRUE(used.contains(wanted)) << wanted;
    }
}

} // namespace
} // namespace quillgrid::editor
