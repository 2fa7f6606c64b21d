#pragma once

#include <QString>

namespace sandogh {

class ProgramLauncher;

// Hands a command to the companion accounting program: the program started detached with
// the command text as its one argument ("mnuRptFish,...", "mnuPosMellat,125000", ...), the
// way the shell's "open" verb started it. The program prints the receipts and reports and
// drives the terminals that this program does not drive itself.
class CompanionHandOff {
public:
    // programPath: the companion's absolute path (MachineSettings::companionProgramPath).
    CompanionHandOff(ProgramLauncher& launcher, QString programPath);

    // Whether the companion program is there; without it the receipt is printed here.
    bool isPresent() const;
    QString programPath() const { return m_programPath; }

    // Starts the companion with the command; false when it is missing or did not start.
    bool send(const QString& command);
    // The last command sent (for the status line and the tests of the screens).
    QString lastCommand() const { return m_lastCommand; }

private:
    ProgramLauncher& m_launcher;
    QString m_programPath;
    QString m_lastCommand;
};

}  // namespace sandogh
