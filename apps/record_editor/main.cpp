#include "apps/record_editor/CommandLine.h"
#include "apps/record_editor/Database.h"
#include "apps/record_editor/DatabaseAddress.h"
#include "apps/record_editor/EditorWindow.h"
#include "apps/record_editor/SchemaReader.h"
#include "apps/record_editor/WindowStyle.h"

#include <QApplication>
#include <QCursor>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <cstdio>

using namespace quillgrid::editor;

namespace {

constexpr int UsageOrDatabaseError = 2;

int Complain(const QString& message) {
    std::fprintf(stderr, "record_editor: %s\n", qUtf8Printable(message));
    return UsageOrDatabaseError;
}

/// Qt's remarks about surroundings in which everything works all the same would only look like faults.
void SayWhatMatters(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    for (const QStringView remark :
         {u"QStandardPaths: XDG_RUNTIME_DIR not set", u"This plugin does not support propagateSizeHints()"}) {
        if (message.startsWith(remark)) return;
    }
    std::fprintf(stderr, "%s\n", qUtf8Printable(qFormatLogMessage(type, context, message)));
}

QStringList ArgumentsOf(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

bool HasDisplay() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

/// Before the application exists: its platform and scale cannot be changed afterwards.
void PrepareSurroundings(CommandLine& line) {
    if (line.Picture.isEmpty() && !HasDisplay()) {
        line.Picture = QStringLiteral("record_editor.png");
    }
    if (line.Picture.isEmpty()) return;
    if (!HasDisplay()) qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_FONT_DPI");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(line.Scale));
    qputenv("QT_SCALE_FACTOR_ROUNDING_POLICY", "PassThrough");
}

void ChooseLook(const CommandLine& line) {
    if (!line.Picture.isEmpty() || line.Dark) UseFixedLook();
    if (line.Dark)
        QApplication::setPalette(DarkPalette());
    else if (!line.Picture.isEmpty())
        QApplication::setPalette(LightPalette());
}

Outcome<TableName> FindTable(const QList<TableName>& tables, const QString& wanted) {
    if (tables.isEmpty()) return Failure{QStringLiteral("The database has no tables.")};
    if (wanted.isEmpty()) return tables.first();
    QStringList names;
    for (const TableName& table : tables) {
        if (table.Shown.compare(wanted, Qt::CaseInsensitive) == 0) return table;
        names << table.Shown;
    }
    return Failure{
        QStringLiteral("There is no table “%1”. The tables are: %2.").arg(wanted, names.join(u", "))};
}

int WritePicture(EditorWindow& window, const CommandLine& line) {
    window.activateWindow();
    window.widget().setFocus();
    QCursor::setPos(window.mapToGlobal(QPoint(window.width() - 1, window.height() - 1))); // no tool lights up
    QApplication::processEvents();
    if (!window.grab().save(line.Picture, "PNG")) {
        return Complain(QStringLiteral("The picture “%1” cannot be written.").arg(line.Picture));
    }
    std::printf("The form was written to %s\n", qUtf8Printable(QFileInfo(line.Picture).absoluteFilePath()));
    return 0;
}

int Edit(std::unique_ptr<Database> database, const CommandLine& line) {
    const auto tables = SchemaReader::For(*database)->Tables();
    if (!tables) return Complain(tables.Message());
    const bool sample = line.Address.isEmpty() && line.Table.isEmpty();
    const auto table = FindTable(*tables, sample ? QStringLiteral("companies") : line.Table);
    if (!table) return Complain(table.Message());
    EditorWindow window(std::move(database), *tables);
    if (!window.openTable(*table)) return Complain(window.message());
    if (const auto count = window.form()->Count(); line.Record > std::max<qsizetype>(count, 1)) {
        return Complain(
            QStringLiteral("There is no record %1; the last one is %2.").arg(line.Record).arg(count));
    }
    window.goTo(line.Record - 1);
    window.show();
    return line.Picture.isEmpty() ? QApplication::exec() : WritePicture(window, line);
}

} // namespace

int main(int argc, char** argv) {
    auto line = CommandLine::Parse(ArgumentsOf(argc, argv));
    if (!line) return Complain(line.Message() + u'\n' + CommandLine::Usage());
    if (line->Help) {
        std::printf("%s", qUtf8Printable(CommandLine::Usage()));
        return 0;
    }
    const auto address =
        DatabaseAddress::Parse(line->Address.isEmpty() ? QStringLiteral(SAMPLE_DATABASE) : line->Address);
    if (!address) return Complain(address.Message());
    qInstallMessageHandler(SayWhatMatters);
    PrepareSurroundings(*line);
    if (!line->Locale.isEmpty()) QLocale::setDefault(QLocale(line->Locale));
    QApplication application(argc, argv);
    ChooseLook(*line);
    auto database = Database::Open(*address);
    if (!database) return Complain(database.Message());
    return Edit(std::move(*database), *line);
}
