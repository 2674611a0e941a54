#include "PostgresServer.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#include <unistd.h>

namespace quillgrid::editor {

PostgresServer::PostgresServer() {
    if (Tool(QStringLiteral("initdb")).isEmpty()) {
        problem_ = QStringLiteral("PostgreSQL's server is not installed");
        return;
    }
    // The server refuses to run as root; its own user needs a way into the folder.
    QFile::setPermissions(folder_.path(), QFile::Permissions(0x7777));
    const QString data = folder_.filePath(QStringLiteral("data"));
    const QString options = u"-k " + folder_.path() + u" -c listen_addresses='' -c fsync=off";
    running_ =
        RunAsServerUser({Tool(QStringLiteral("initdb")), QStringLiteral("-A"), QStringLiteral("trust"),
                         QStringLiteral("-U"), QStringLiteral("tester"), QStringLiteral("-E"),
                         QStringLiteral("UTF8"), QStringLiteral("--no-sync"), QStringLiteral("-D"), data}) &&
        RunAsServerUser({Tool(QStringLiteral("pg_ctl")), QStringLiteral("-D"), data, QStringLiteral("-o"),
                         options, QStringLiteral("-l"), folder_.filePath(QStringLiteral("log")),
                         QStringLiteral("-w"), QStringLiteral("start")});
}

PostgresServer::~PostgresServer() {
    if (!running_) return;
    RunAsServerUser({Tool(QStringLiteral("pg_ctl")), QStringLiteral("-D"),
                     folder_.filePath(QStringLiteral("data")), QStringLiteral("-m"),
                     QStringLiteral("immediate"), QStringLiteral("stop")});
    RunAsServerUser({QStringLiteral("rm"), QStringLiteral("-rf"), folder_.filePath(QStringLiteral("data"))});
}

QString PostgresServer::Address() const {
    return u"postgresql://tester@" + QString::fromLatin1(QUrl::toPercentEncoding(folder_.path())) +
           u"/postgres";
}

QString PostgresServer::Tool(const QString& name) const {
    const QDir versions(QStringLiteral("/usr/lib/postgresql"));
    for (const QString& version :
         versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::Reversed)) {
        const QString path = versions.filePath(version + u"/bin/" + name);
        if (QFileInfo(path).isExecutable()) return path;
    }
    return {};
}

bool PostgresServer::RunAsServerUser(const QStringList& command) {
    QStringList whole = command;
    if (geteuid() == 0)
        whole = QStringList{QStringLiteral("setpriv"), QStringLiteral("--reuid=postgres"),
                            QStringLiteral("--regid=postgres"), QStringLiteral("--clear-groups")} +
                command;
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setWorkingDirectory(folder_.path());
    process.start(whole.first(), whole.sliced(1));
    if (process.waitForFinished(60'000) && process.exitCode() == 0) return true;
    problem_ =
        u"the server could not be started: " + QString::fromUtf8(process.readAllStandardError()).trimmed();
    return false;
}

} // namespace quillgrid::editor
