#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace sandogh::test {

// A private CUPS scheduler for one test: its own configuration, spool and
// logs in a temporary folder, listening on a free loopback port. The client
// library of this process is pointed at it while it runs.
class CupsServer {
public:
    CupsServer();
    ~CupsServer();
    CupsServer(const CupsServer&) = delete;
    CupsServer& operator=(const CupsServer&) = delete;

    // Starts cupsd; on failure reason() says why (the test then skips).
    bool start();
    const QString& reason() const { return m_reason; }
    QString address() const;

    // A queue whose output lands unchanged in a file; returns the file path.
    QString addFileQueue(const QString& name, bool makeDefault);

    // The title of the newest job of a queue, also once completed.
    QString lastJobTitle(const QString& queue) const;

private:
    bool lpadmin(const QStringList& args);

    QTemporaryDir m_dir;
    QProcess m_cupsd;
    int m_port = 0;
    QString m_reason;
};

}  // namespace sandogh::test
