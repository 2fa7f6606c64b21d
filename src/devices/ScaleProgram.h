#pragma once

#include <QString>

#include "ProgramLauncher.h"

namespace sandogh {

// The Arka scales' own program, started from the main menu (mnuScale).
class ScaleProgram {
public:
    ScaleProgram(const QString& programFolder, ProgramLauncher& launcher);

    // KotrimoAcc/ArkaScale.exe under the program folder.
    QString path() const;
    // Starts it and does not wait; false when it could not be started.
    bool mnuScale_Click();

private:
    QString m_programFolder;
    ProgramLauncher& m_launcher;
};

}  // namespace sandogh
