#pragma once

#include <QString>
#include <QStringList>

namespace sandogh {

// Starts a companion program (drawer driver, scale program) the way the
// shell's "open" verb did: detached, not waited for, its result not checked.
class ProgramLauncher {
public:
    virtual ~ProgramLauncher() = default;

    // False only when the program could not be started at all.
    virtual bool startDetached(const QString& program, const QStringList& arguments,
                               const QString& workingDirectory, bool hidden) = 0;
};

}  // namespace sandogh
