#pragma once

#include <QString>
#include <memory>

#include "app/Station.h"
#include "app/UserAccount.h"
#include "data/ConnectionSettings.h"
#include "settings/MachineSettings.h"

namespace sandogh {

class Clock;
class Database;
class ErrorLog;
class MessageService;
class ProgramLauncher;
class RawPrinter;
class SettingsStore;

// What the running program shares between its parts, created once in main() and handed
// to whoever needs it: the program folder, this machine's settings, the shop database,
// the error log, the clock, the message service, today's date, the logged-in user and
// the cash desk. The edges (settings store, clock, messages, launcher, raw printer) are
// not owned; tests hand in their doubles.
class AppContext {
public:
    AppContext(QString programFolder, SettingsStore& settingsStore, const Clock& clock,
               MessageService& messages, ProgramLauncher& launcher, RawPrinter& rawPrinter,
               QString versionText);
    ~AppContext();
    AppContext(const AppContext&) = delete;
    AppContext& operator=(const AppContext&) = delete;

    const QString& programFolder() const { return m_programFolder; }
    SettingsStore& settingsStore() const { return m_settingsStore; }
    // The branch transfer's own settings ("Factortransfer"), for the settings screen; may
    // be null.
    SettingsStore* transferSettingsStore() const { return m_transferSettingsStore; }
    void setTransferSettingsStore(SettingsStore* store) { m_transferSettingsStore = store; }
    MachineSettings& machineSettings() { return m_machineSettings; }
    const MachineSettings& machineSettings() const { return m_machineSettings; }
    const Clock& clock() const { return m_clock; }
    MessageService& messages() const { return m_messages; }
    ProgramLauncher& launcher() const { return m_launcher; }
    RawPrinter& rawPrinter() const { return m_rawPrinter; }
    ErrorLog& errorLog() const { return *m_errorLog; }

    // TodayJalali: today's Jalali date text, fixed when the program started.
    const QString& todayJalali() const { return m_todayJalali; }
    // The Persian name of that day's weekday.
    const QString& todayWeekday() const { return m_todayWeekday; }
    // VersionText: the program's version as the status bar shows it and the log records it.
    const QString& versionText() const { return m_versionText; }

    // The shop database, once the start-up has built it.
    bool hasDatabase() const { return m_database != nullptr; }
    Database& database() const { return *m_database; }
    void setDatabase(std::unique_ptr<Database> database, ConnectionSettings settings);
    const ConnectionSettings& connectionSettings() const { return m_connectionSettings; }

    // CurrentDatabaseName: the fiscal-year database chosen on this machine, empty for none.
    const QString& currentDatabaseName() const { return m_currentDatabaseName; }
    void setCurrentDatabaseName(const QString& name) { m_currentDatabaseName = name; }

    // The user who logged in; invalid before the login. Setting it also names the user in
    // the error log's records.
    const UserAccount& user() const { return m_user; }
    void setUser(const UserAccount& user);

    // UserProfile: the profile number of this machine's user, read at login (0 when the
    // setting is empty or not a number); the settings screens show more with a profile.
    int userProfile() const { return m_userProfile; }
    void setUserProfile(int profile) { m_userProfile = profile; }

    const Station& station() const { return m_station; }
    void setStation(const Station& station) { m_station = station; }

    // The idle text of the customer display (table Display), read when the main window loads.
    const QString& displayGreeting() const { return m_displayGreeting; }
    void setDisplayGreeting(const QString& greeting) { m_displayGreeting = greeting; }

private:
    QString m_programFolder;
    SettingsStore& m_settingsStore;
    SettingsStore* m_transferSettingsStore = nullptr;
    MachineSettings m_machineSettings;
    const Clock& m_clock;
    MessageService& m_messages;
    ProgramLauncher& m_launcher;
    RawPrinter& m_rawPrinter;
    QString m_versionText;
    QString m_todayJalali;
    QString m_todayWeekday;
    std::unique_ptr<ErrorLog> m_errorLog;
    ConnectionSettings m_connectionSettings;
    std::unique_ptr<Database> m_database;
    QString m_currentDatabaseName;
    UserAccount m_user;
    int m_userProfile = 0;
    Station m_station;
    QString m_displayGreeting;
};

}  // namespace sandogh
