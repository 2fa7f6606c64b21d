#include "app/CompanionPrograms.h"

#include <QDir>
#include <QFileInfo>

#include "devices/ProgramLauncher.h"
#include "settings/MachineSettings.h"

namespace sandogh {

CompanionPrograms::CompanionPrograms(const MachineSettings& settings, ProgramLauncher& launcher,
                                     QString programFolder)
    : m_settings(settings), m_launcher(launcher), m_programFolder(std::move(programFolder)) {}

QStringList CompanionPrograms::loginPrograms() const {
    QString messenger = QString::fromLatin1(kMessenger);
#ifdef _WIN32
    messenger += QStringLiteral(".exe");
#endif
    return {
        m_settings.companionProgramPath(m_programFolder),
        QDir::cleanPath(QDir(m_programFolder).absoluteFilePath(messenger)),
    };
}

bool CompanionPrograms::startIfPresent(const QString& path) {
    const QFileInfo file(path);
    if (!file.isFile()) {
        return false;
    }
    return m_launcher.startDetached(file.absoluteFilePath(), {}, file.absolutePath(), false);
}

QStringList CompanionPrograms::startLoginPrograms() {
    QStringList started;
    for (const QString& path : loginPrograms()) {
        if (startIfPresent(path)) {
            started << path;
        }
    }
    return started;
}

QString CompanionPrograms::scaleProgram() const {
    return QDir::cleanPath(QDir(m_programFolder).absoluteFilePath(QLatin1String(kScaleProgram)));
}

bool CompanionPrograms::startScaleProgram() {
    return startIfPresent(scaleProgram());
}

}  // namespace sandogh
