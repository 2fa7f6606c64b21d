#pragma once

#include <QTextStream>
#include <memory>

#include "ConsoleMessageService.h"
#include "data/Database.h"
#include "data/ErrorLog.h"
#include "settings/Clock.h"
#include "settings/MachineSettings.h"
#include "settings/QSettingsStore.h"

namespace sandogh {

// The shop database of a program folder for a command: this machine's settings, the
// connection file with the fiscal year chosen here, the error log, and messages printed
// as lines of the error stream.
class AdminShop {
public:
    AdminShop(const QString& programDir, QTextStream& err);

    // Opens the database; false (with the reason on the error stream) when the connection
    // file cannot be read.
    bool open(const QString& commandName);

    Database& database() { return *m_database; }
    MachineSettings& settings() { return m_settings; }
    MessageService& messages() { return m_messages; }

private:
    QString m_programDir;
    QTextStream& m_err;
    ConsoleMessageService m_messages;
    SystemClock m_clock;
    QSettingsStore m_store;
    MachineSettings m_settings;
    std::unique_ptr<ErrorLog> m_log;
    std::unique_ptr<Database> m_database;
};

}  // namespace sandogh
