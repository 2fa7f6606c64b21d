#pragma once

#include <QString>
#include <QStringList>

namespace sandogh {

class MachineSettings;
class ProgramLauncher;

// The programs that run beside this one, started the way the shell's "open" verb did:
// detached, not waited for, their result not checked.
//
// After a login two companions are started, when they are there:
//  1. the companion accounting program, which prints the receipts and owns the reports
//     ("Programs"/"Companion" of the settings, Program/KotrimoAcc.exe by default): started
//     once at login it is ready when the first receipt is handed to it;
//  2. the messenger, Program/SandoghMessenger (".exe" on Windows), which sends the queued
//     SMS notices and birthday greetings of the shop.
// A companion that is not in the program folder is skipped without a word.
class CompanionPrograms {
public:
    static constexpr const char* kMessenger = "Program/SandoghMessenger";
    // The scale vendor's program started by the main menu's scale command.
    static constexpr const char* kScaleProgram = "KotrimoAcc/ArkaScale.exe";

    CompanionPrograms(const MachineSettings& settings, ProgramLauncher& launcher,
                      QString programFolder);

    // The absolute paths of the two companions started after a login, in order.
    QStringList loginPrograms() const;
    // Starts those of them that exist; the paths that were started.
    QStringList startLoginPrograms();

    // The scale program's absolute path.
    QString scaleProgram() const;
    // Starts it; false when it is not there or could not be started.
    bool startScaleProgram();

private:
    bool startIfPresent(const QString& path);

    const MachineSettings& m_settings;
    ProgramLauncher& m_launcher;
    QString m_programFolder;
};

}  // namespace sandogh
