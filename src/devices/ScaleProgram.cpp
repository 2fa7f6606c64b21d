#include "ScaleProgram.h"

#include <QDir>

namespace sandogh {

ScaleProgram::ScaleProgram(const QString& programFolder, ProgramLauncher& launcher)
    : m_programFolder(programFolder), m_launcher(launcher) {}

QString ScaleProgram::path() const {
    return QDir::toNativeSeparators(
        QDir(m_programFolder).filePath(QStringLiteral("KotrimoAcc/ArkaScale.exe")));
}

bool ScaleProgram::mnuScale_Click() {
    return m_launcher.startDetached(path(), {}, QString(), false);
}

}  // namespace sandogh
