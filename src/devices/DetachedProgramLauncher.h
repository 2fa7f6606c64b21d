#pragma once

#include "ProgramLauncher.h"

namespace sandogh {

// The real launcher: QProcess::startDetached, with the window hidden on Windows.
class DetachedProgramLauncher final : public ProgramLauncher {
public:
    // A working directory that does not exist is not passed on: the program
    // then starts in the caller's directory instead of not starting at all.
    bool startDetached(const QString& program, const QStringList& arguments,
                       const QString& workingDirectory, bool hidden) override;
};

}  // namespace sandogh
