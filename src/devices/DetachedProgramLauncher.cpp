#include "DetachedProgramLauncher.h"

#include <QDir>
#include <QProcess>

#ifdef _WIN32
#include <windows.h>
#endif

namespace sandogh {

bool DetachedProgramLauncher::startDetached(const QString& program, const QStringList& arguments,
                                            const QString& workingDirectory, bool hidden) {
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    if (!workingDirectory.isEmpty() && QDir(workingDirectory).exists()) {
        process.setWorkingDirectory(workingDirectory);
    }
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
#ifdef _WIN32
    if (hidden) {
        process.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments* args) {
            args->startupInfo->dwFlags |= STARTF_USESHOWWINDOW;
            args->startupInfo->wShowWindow = SW_HIDE;
        });
    }
#else
    Q_UNUSED(hidden);  // programs started here open no console window
#endif
    return process.startDetached();
}

}  // namespace sandogh
