#include "apps/record_editor/Database.h"

#include <QFileInfo>
#include <QUuid>

#include <algorithm>
#include <array>

namespace quillgrid::editor {
namespace {

// Looking at every page of a large file would keep the user waiting; there, damage shows when it is met.
constexpr qint64 LargestCheckedFile = 64LL * 1024 * 1024;

bool MayWrite(const QFileInfo& file) {
    // The mark on the file counts for the superuser too.
    const auto anyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    return file.isWritable() && (file.permissions() & anyWrite);
}

QString QuotedOption(const QString& option) {
    const auto equals = option.indexOf(u'=');
    QString value = option.sliced(equals + 1);
    value.replace(u'\\', QLatin1String("\\\\")).replace(u'\'', QLatin1String("\\'"));
    return option.first(equals) + QLatin1String("='") + value + u'\'';
}

QString ConnectOptions(QStringList options) {
    if (options.filter(QStringLiteral("connect_timeout=")).isEmpty()) {
        options << QStringLiteral("connect_timeout=10");
    }
    for (QString& option : options)
        option = QuotedOption(option);
    return options.join(u';');
}

Outcome<Done> FindFile(const QString& file) {
    const QFileInfo info(file);
    if (!info.exists()) return Failure{QStringLiteral("There is no file “%1”.").arg(file)};
    if (info.isDir()) return Failure{QStringLiteral("“%1” is a folder, not a database.").arg(file)};
    if (!info.isReadable()) return Failure{QStringLiteral("The file “%1” may not be read.").arg(file)};
    return Done{};
}

/// Rows that break a rule of their own table are whole; they can be shown and put right.
bool IsDamage(const QString& verdict) {
    if (verdict == u"ok" || verdict.startsWith(u"CHECK constraint failed")) return false;
    static constexpr std::array<QStringView, 5> valueVerdicts{u"NULL value in ", u"NUMERIC value in ",
                                                              u"TEXT value in ", u"non-INT value in ",
                                                              u"non-BLOB value in "};
    return std::none_of(valueVerdicts.begin(), valueVerdicts.end(),
                        [&](QStringView start) { return verdict.startsWith(start); });
}

struct Hint {
    const char* Code; ///< SQLite's result code or PostgreSQL's SQLSTATE
    const char* Text;
};
constexpr std::array<Hint, 9> Hints{{
    {"5", "The database is locked by another program. Try again in a moment."},
    {"517", "The database was changed by another program. Load the record again."},
    {"6", "The table is locked by another program. Try again in a moment."},
    {"8", "The database is read-only."},
    {"11", "The database file is damaged."},
    {"13", "The disk is full."},
    {"26", "The file is not a database."},
    {"25006", "The database is read-only."},
    {"55P03", "The record is locked by another program. Try again in a moment."},
}};

QString HintFor(const QString& code) {
    for (const Hint& hint : Hints) {
        if (code == QLatin1String(hint.Code)) return QLatin1String(hint.Text);
    }
    // SQLite's extended codes carry the plain one in their low byte; a SQLSTATE always has five characters.
    const int extended = code.size() < 5 ? code.toInt() : 0;
    return extended > 255 ? HintFor(QString::number(extended & 255)) : QString();
}

// PostgreSQL's driver writes "ERROR:  text\n(SQLSTATE) QPSQL..." with further lines about place and context.
QString FirstSentence(const QString& databaseText) {
    QString text = databaseText.section(u'\n', 0, 0).trimmed();
    for (const QStringView prefix : {u"ERROR:", u"FATAL:"}) {
        if (text.startsWith(prefix)) text = text.sliced(prefix.size()).trimmed();
    }
    return text;
}

} // namespace

Database::Database(const QString& connection, const DatabaseAddress& address, bool readOnly)
    : connection_(connection),
      description_(address.Description()),
      dialect_(address.Postgres),
      readOnly_(readOnly) {}

Database::~Database() {
    Connection().close();
    QSqlDatabase::removeDatabase(connection_);
}

Outcome<std::unique_ptr<Database>> Database::Open(const DatabaseAddress& address) {
    const QString driver = address.Postgres ? QStringLiteral("QPSQL") : QStringLiteral("QSQLITE");
    if (!QSqlDatabase::isDriverAvailable(driver)) {
        const QString package =
            address.Postgres ? QStringLiteral("libqt6sql6-psql") : QStringLiteral("libqt6sql6-sqlite");
        return Failure{
            QStringLiteral("Qt's database driver %1 is not installed (package %2).").arg(driver, package)};
    }
    bool readOnly = false;
    if (!address.Postgres) {
        if (const auto found = FindFile(address.File); !found) return found.Reason();
        readOnly = !MayWrite(QFileInfo(address.File));
    }
    const QString connection = QUuid::createUuid().toString();
    QSqlDatabase::addDatabase(driver, connection);
    std::unique_ptr<Database> database(new Database(connection, address, readOnly));
    const auto opened = address.Postgres ? database->OpenServer(address) : database->OpenFile(address);
    if (!opened) return opened.Reason();
    return database;
}

Outcome<Done> Database::OpenFile(const DatabaseAddress& address) {
    QSqlDatabase connection = Connection();
    connection.setDatabaseName(address.File);
    connection.setConnectOptions(readOnly_ ? QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=1500")
                                           : QStringLiteral("QSQLITE_BUSY_TIMEOUT=1500"));
    if (!connection.open()) return Failure{Explain(connection.lastError())};
    if (const auto checked = CheckFile(address.File); !checked) {
        return Failure{QStringLiteral("“%1” cannot be opened: %2").arg(address.File, checked.Message())};
    }
    // References are only enforced by connections that ask for it.
    if (const auto asked = Run(QStringLiteral("PRAGMA foreign_keys = ON")); !asked) return asked.Reason();
    return Done{};
}

Outcome<Done> Database::CheckFile(const QString& file) const {
    if (const auto read = Run(QStringLiteral("SELECT count(*) FROM sqlite_master")); !read)
        return read.Reason();
    if (QFileInfo(file).size() > LargestCheckedFile) return Done{};
    auto check = Run(QStringLiteral("PRAGMA quick_check(100)"));
    if (!check) return check.Reason();
    while (check->next()) {
        const QString verdict = check->value(0).toString().simplified();
        if (IsDamage(verdict))
            return Failure{QStringLiteral("The database file is damaged. (%1)").arg(verdict)};
    }
    if (check->lastError().isValid()) return Failure{Explain(check->lastError())};
    return Done{};
}

Outcome<Done> Database::OpenServer(const DatabaseAddress& address) {
    QSqlDatabase connection = Connection();
    connection.setHostName(address.Host);
    if (address.Port > 0) connection.setPort(address.Port);
    connection.setUserName(address.User);
    connection.setPassword(address.Password);
    connection.setDatabaseName(address.Name);
    connection.setConnectOptions(ConnectOptions(address.Options));
    if (connection.open()) return Done{};
    return Failure{QStringLiteral("No connection to %1: %2")
                       .arg(address.Description(), Explain(connection.lastError()))};
}

Outcome<QSqlQuery> Database::Run(const QString& sql, const QVariantList& values) const {
    QSqlQuery query(Connection());
    // PostgreSQL's driver loses the rest of a forward-only result as soon as another statement runs.
    query.setForwardOnly(!dialect_.IsPostgres());
    // Without values nothing needs preparing, and servers do not prepare every kind of statement.
    if (values.isEmpty()) {
        if (query.exec(sql)) return query;
        return Failure{Explain(query.lastError())};
    }
    if (!query.prepare(sql)) return Failure{Explain(query.lastError())};
    for (const QVariant& value : values)
        query.addBindValue(value);
    if (!query.exec()) return Failure{Explain(query.lastError())};
    return query;
}

Outcome<Done> Database::Begin() {
    QSqlDatabase connection = Connection();
    if (connection.transaction()) return Done{};
    return Failure{Explain(connection.lastError())};
}

Outcome<Done> Database::Commit() {
    QSqlDatabase connection = Connection();
    if (connection.commit()) return Done{};
    return Failure{Explain(connection.lastError())};
}

void Database::Rollback() {
    Connection().rollback();
}

QString Database::Explain(const QSqlError& error) {
    const QString said = FirstSentence(error.databaseText().isEmpty() ? error.text() : error.databaseText());
    const QString hint = HintFor(error.nativeErrorCode());
    if (hint.isEmpty()) return said;
    return said.isEmpty() ? hint : QStringLiteral("%1 (%2)").arg(hint, said);
}

Outcome<Done> Transaction::Begin() {
    auto begun = database_.Begin();
    open_ = static_cast<bool>(begun);
    return begun;
}

Outcome<Done> Transaction::Commit() {
    auto committed = database_.Commit();
    if (committed) open_ = false;
    return committed;
}

} // namespace quillgrid::editor
