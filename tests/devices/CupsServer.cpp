#include "CupsServer.h"

#include <cups/cups.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <cstdlib>

namespace sandogh::test {

namespace {

bool writeFile(const QString& path, const QByteArray& text) {
    QFile f(path);
    return f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(text) == text.size();
}

int freePort() {
    QTcpServer probe;
    if (!probe.listen(QHostAddress::LocalHost, 0))
        return 0;
    return probe.serverPort();
}

// A queue without a driver copies nothing into a file device for a one-document
// job, so the queue gets a minimal description whose only filter passes raw
// bytes through unchanged (gziptoany leaves uncompressed data as it is).
const char* kPassThroughPpd = R"PPD(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "RAWFILE.PPD"
*Manufacturer: "Sandogh"
*Product: "(Raw file)"
*ModelName: "Raw file"
*ShortNickName: "Raw file"
*NickName: "Raw file"
*cupsFilter: "application/vnd.cups-raw 0 gziptoany"
)PPD";

}  // namespace

CupsServer::CupsServer() = default;

CupsServer::~CupsServer() {
    if (m_cupsd.state() != QProcess::NotRunning) {
        m_cupsd.terminate();
        if (!m_cupsd.waitForFinished(5000)) {
            m_cupsd.kill();
            m_cupsd.waitForFinished(2000);
        }
    }
    cupsSetServer(nullptr);
}

QString CupsServer::address() const {
    return QStringLiteral("127.0.0.1:%1").arg(m_port);
}

bool CupsServer::start() {
    const QString cupsd = QStringLiteral("/usr/sbin/cupsd");
    if (!QFile::exists(cupsd)) {
        m_reason = QStringLiteral("cupsd is not installed");
        return false;
    }
    // The test queue passes raw bytes through this filter (package cups-core-drivers).
    if (!QFile::exists(QStringLiteral("/usr/lib/cups/filter/gziptoany"))) {
        m_reason = QStringLiteral("the CUPS filter gziptoany is not installed");
        return false;
    }
    if (!m_dir.isValid()) {
        m_reason = QStringLiteral("no temporary folder");
        return false;
    }
    const QString root = m_dir.path();
    // The scheduler runs filters as an unprivileged user that must reach the spool.
    QFile::setPermissions(root, QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                    QFileDevice::ExeOwner | QFileDevice::ReadGroup |
                                    QFileDevice::ExeGroup | QFileDevice::ReadOther |
                                    QFileDevice::ExeOther);
    for (const char* sub : {"etc", "spool", "spool/tmp", "run", "cache", "log"}) {
        QDir(root).mkpath(QString::fromLatin1(sub));
    }
    m_port = freePort();
    if (m_port == 0) {
        m_reason = QStringLiteral("no free loopback port");
        return false;
    }
    const QByteArray r = root.toLocal8Bit();
    const QByteArray files = "ServerRoot " + r + "/etc\nRequestRoot " + r + "/spool\nTempDir " + r +
                             "/spool/tmp\nStateDir " + r + "/run\nCacheDir " + r +
                             "/cache\nAccessLog " + r + "/log/access_log\nErrorLog " + r +
                             "/log/error_log\nPageLog " + r + "/log/page_log\nFileDevice Yes\n";
    const QByteArray conf = "Listen 127.0.0.1:" + QByteArray::number(m_port) +
                            "\nLogLevel warn\nWebInterface No\nBrowsing No\n"
                            "DefaultAuthType None\n"
                            "<Location />\n  Order allow,deny\n  Allow all\n</Location>\n"
                            "<Policy default>\n  <Limit All>\n    Order deny,allow\n"
                            "    Allow all\n  </Limit>\n</Policy>\n";
    if (!writeFile(root + QStringLiteral("/cups-files.conf"), files) ||
        !writeFile(root + QStringLiteral("/cupsd.conf"), conf) ||
        !writeFile(root + QStringLiteral("/rawfile.ppd"), kPassThroughPpd)) {
        m_reason = QStringLiteral("cannot write the scheduler configuration");
        return false;
    }
    m_cupsd.setProcessChannelMode(QProcess::MergedChannels);
    m_cupsd.start(cupsd,
                  {QStringLiteral("-f"), QStringLiteral("-c"), root + QStringLiteral("/cupsd.conf"),
                   QStringLiteral("-s"), root + QStringLiteral("/cups-files.conf")});
    if (!m_cupsd.waitForStarted(5000)) {
        m_reason = QStringLiteral("cupsd did not start: ") + m_cupsd.errorString();
        return false;
    }
    QDeadlineTimer deadline(15000);
    while (!deadline.hasExpired()) {
        if (m_cupsd.state() == QProcess::NotRunning)
            break;
        QTcpSocket probe;
        probe.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(m_port));
        if (probe.waitForConnected(200)) {
            cupsSetServer(address().toLatin1().constData());
            return true;
        }
        QThread::msleep(50);
    }
    m_cupsd.waitForFinished(100);
    m_reason = QStringLiteral("cupsd did not come up: ") +
               QString::fromLocal8Bit(m_cupsd.readAll()).trimmed();
    QFile log(root + QStringLiteral("/log/error_log"));
    if (log.open(QIODevice::ReadOnly))
        m_reason += QLatin1Char(' ') + log.readAll().right(400);
    return false;
}

bool CupsServer::lpadmin(const QStringList& args) {
    QProcess p;
    p.start(QStringLiteral("/usr/sbin/lpadmin"),
            QStringList{QStringLiteral("-h"), address()} + args);
    return p.waitForFinished(15000) && p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
}

QString CupsServer::addFileQueue(const QString& name, bool makeDefault) {
    const QString out = m_dir.path() + QLatin1Char('/') + name + QStringLiteral(".out");
    if (!writeFile(out, {}))
        return {};
    if (!lpadmin({QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
                  QStringLiteral("file://") + out, QStringLiteral("-P"),
                  m_dir.path() + QStringLiteral("/rawfile.ppd")})) {
        return {};
    }
    if (makeDefault && !lpadmin({QStringLiteral("-d"), name}))
        return {};
    return out;
}

QString CupsServer::lastJobTitle(const QString& queue) const {
    cups_job_t* jobs = nullptr;
    const QByteArray q = queue.toUtf8();
    const int n = cupsGetJobs2(CUPS_HTTP_DEFAULT, &jobs, q.constData(), 0, CUPS_WHICHJOBS_ALL);
    QString title;
    int newest = -1;
    for (int i = 0; i < n; ++i) {
        if (jobs[i].id > newest) {
            newest = jobs[i].id;
            title = QString::fromUtf8(jobs[i].title);
        }
    }
    cupsFreeJobs(n, jobs);
    return title;
}

}  // namespace sandogh::test
