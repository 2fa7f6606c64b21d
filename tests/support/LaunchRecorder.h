#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "devices/ProgramLauncher.h"

namespace sandogh::test {

// Records the programs it is asked to start instead of starting them.
class LaunchRecorder final : public ProgramLauncher {
public:
    struct Call {
        QString program;
        QStringList arguments;
        QString workingDirectory;
        bool hidden = false;
    };
    bool startDetached(const QString& program, const QStringList& arguments,
                       const QString& workingDirectory, bool hidden) override {
        calls.append({program, arguments, workingDirectory, hidden});
        return true;
    }
    QStringList programs() const {
        QStringList list;
        for (const Call& c : calls) {
            list << c.program;
        }
        return list;
    }
    QList<Call> calls;
};

}  // namespace sandogh::test
