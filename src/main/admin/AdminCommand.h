#pragma once

#include <QString>
#include <QStringList>
#include <QTextStream>

namespace sandogh {

// Exit codes shared by every command.
enum AdminExit : int { ExitOk = 0, ExitFailed = 1, ExitUsage = 2 };

// What a command is handed: its own words (the command name removed), the
// program folder (--dir, default the folder of the executable) and the streams.
struct AdminCall {
    QStringList args;
    QString programDir;
    QTextStream& out;
    QTextStream& err;
};

using AdminRun = int (*)(AdminCall&);

struct AdminCommand {
    const char* name;
    const char* usage;
    AdminRun run;
};

// Every command, in the order "help" lists them.
const QList<AdminCommand>& adminCommands();

}  // namespace sandogh
