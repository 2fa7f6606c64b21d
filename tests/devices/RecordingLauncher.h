#pragma once

#include <QList>

#include "devices/ProgramLauncher.h"

namespace sandogh::test {

// Records the command lines it is asked to start.
class RecordingLauncher final : public ProgramLauncher {
public:
    struct Call {
        QString program;
        QStringList arguments;
        QString workingDirectory;
        bool hidden;
    };

    bool startDetached(const QString& program, const QStringList& arguments,
                       const QString& workingDirectory, bool hidden) override {
        calls.append({program, arguments, workingDirectory, hidden});
        return true;
    }

    QList<Call> calls;
};

}  // namespace sandogh::test
