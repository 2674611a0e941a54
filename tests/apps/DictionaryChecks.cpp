#include "DictionaryChecks.h"

#include "quillgrid/cells/CellProperties.h"

#include <gtest/gtest.h>

#include <array>

namespace quillgrid::editor {
namespace {

struct Said {
    const char* Property;
    const char* Type;  ///< of the dictionary's column
    const char* Value; ///< in SQL
    const char* Read;  ///< what the cell then answers
};
constexpr std::array<Said, 38> Saids{{
    {"Alignment", "integer", "2", "2"},
    {"AllowEmpty", "boolean", "false", "False"},
    {"Button", "integer", "2", "2"},
    {"Caption", "text", "'Fill level'", "Fill level"},
    {"CausesValidation", "text", "'False'", "False"},
    {"CharCase", "integer", "1", "1"},
    {"Charlist", "text", "'0123456789'", "0123456789"},
    {"DataVisible", "boolean", "false", "False"},
    {"Default", "text", "'30'", "30"},
    {"Enabled", "text", "'0'", "False"},
    {"FillColor", "bigint", "3355443", "3355443"},
    {"FontBold", "boolean", "true", "True"},
    {"FontItalic", "integer", "-1", "True"},
    {"ForeColor", "bigint", "2147483665", "-2147483631"},
    {"ForeignField", "text", "'label'", "label"},
    {"ForeignIndex", "text", "'by_label'", "by_label"},
    {"ForeignKey", "text", "'id'", "id"},
    {"ForeignSource", "text", "'kinds'", "kinds"},
    {"Group", "text", "'Tank'", "Tank"},
    {"HelpContextID", "integer", "12", "12"},
    {"Listimage", "text", "'phone'", "phone"},
    {"Locked", "boolean", "true", "True"},
    {"Max", "text", "'80'", "80"},
    {"MaxLength", "integer", "7", "7"},
    {"Min", "numeric", "20", "20"},
    {"RecordSource", "text", "'tanks'", "tanks"},
    {"ShowPercent", "boolean", "true", "True"},
    {"Template", "integer", "20", "20"},
    {"ToolTipText", "text", "'007'", "007"},
    {"Unit", "text", "'l'", "l"},
    {"UserLevelDataVisible", "integer", "3", "3"},
    {"UserLevelEnabled", "integer", "2", "2"},
    {"UserLevelVisible", "integer", "1", "1"},
    {"Visible", "boolean", "false", "False"},
    {"WhatsThisHelpID", "integer", "13", "13"},
    {"AllowSunday", "boolean", "false", "False"},
    {"Format", "text", "'#0.0'", "#0.0"},
    {"Increment", "text", "'5'", "5"},
}};

/// Columns by their quoted names, as some are words of SQL too, with or without their types.
QString Columns(bool withTypes) {
    QString list;
    for (const Said& said : Saids) {
        list += QStringLiteral(", \"%1\"").arg(QLatin1String(said.Property));
        if (withTypes) list += u' ' + QLatin1String(said.Type);
    }
    return list;
}

QString Values() {
    QString list;
    for (const Said& said : Saids)
        list += QStringLiteral(", ") + QLatin1String(said.Value);
    return list;
}

} // namespace

QString DictionaryStatements() {
    return u"CREATE TABLE t (id integer PRIMARY KEY, level integer CHECK (level <= 90), other integer);\n"
           "INSERT INTO t VALUES (1, 40, 1);\n"
           "CREATE TABLE data_dictionary (table_name text, column_name text" +
           Columns(true) + u");\nINSERT INTO data_dictionary (table_name, column_name" + Columns(false) +
           u") VALUES ('t', 'level'" + Values() + u");\n";
}

void ExpectAsTheDictionarySays(Quillgrid& grid) {
    const auto cell = grid.Cells().Item("level");
    for (const Said& said : Saids) {
        // As it stands in a new record: the cells of a saved one have no default.
        const Variant value = FindCellProperty(said.Property)->Read(*cell);
        EXPECT_EQ(value.ToPlainText(), said.Read) << said.Property;
    }
    EXPECT_EQ(cell->Value(), Variant(30));
    EXPECT_EQ(cell->ValidationRule(), qgvrInteger) << "the column's kind, whatever the template says";
    EXPECT_EQ(grid.Cells().Item("other")->Caption(), "Other");
    ASSERT_NE(grid.Groups().Find(ItemKey("Tank")), nullptr);
    EXPECT_TRUE(grid.Grouped());
}

} // namespace quillgrid::editor
