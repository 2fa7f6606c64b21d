#include "devices/CompanionHandOff.h"

#include <QFileInfo>

#include "devices/ProgramLauncher.h"

namespace sandogh {

CompanionHandOff::CompanionHandOff(ProgramLauncher& launcher, QString programPath)
    : m_launcher(launcher), m_programPath(std::move(programPath)) {}

bool CompanionHandOff::isPresent() const {
    return !m_programPath.isEmpty() && QFileInfo(m_programPath).isFile();
}

bool CompanionHandOff::send(const QString& command) {
    if (!isPresent()) {
        return false;
    }
    m_lastCommand = command;
    return m_launcher.startDetached(m_programPath, {command},
                                    QFileInfo(m_programPath).absolutePath(), false);
}

}  // namespace sandogh
