#pragma once

#include <QString>
#include <QTemporaryDir>

namespace quillgrid::editor {

/// A PostgreSQL server of the test's own, on a socket in a folder of its own, gone with it.
class PostgresServer {
public:
    PostgresServer();
    ~PostgresServer();

    bool IsRunning() const { return running_; }
    /// Why it does not run.
    QString Problem() const { return problem_; }
    QString Address() const;

private:
    bool RunAsServerUser(const QStringList& command);
    QString Tool(const QString& name) const;

    QTemporaryDir folder_;
    QString problem_;
    bool running_ = false;
};

} // namespace quillgrid::editor
