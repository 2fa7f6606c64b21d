#include "AdminProcess.h"

#include <QProcess>

namespace sandogh {

namespace {
// Generous: the commands under test answer at once; this only stops a hang.
constexpr int kTimeoutMs = 60000;
}  // namespace

QString AdminProcess::binaryPath() {
    return QStringLiteral(SANDOGH_BINARY_DIR "/src/main/sandogh-admin");
}

AdminProcess::Result AdminProcess::run(const QStringList& args) {
    Result r;
    QProcess p;
    p.start(binaryPath(), args);
    r.started = p.waitForStarted(kTimeoutMs);
    if (!r.started) {
        r.err = p.errorString().toUtf8();
        return r;
    }
    p.waitForFinished(kTimeoutMs);
    r.exitCode = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    r.out = p.readAllStandardOutput();
    r.err = p.readAllStandardError();
    return r;
}

}  // namespace sandogh
