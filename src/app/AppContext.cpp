#include "app/AppContext.h"

#include "data/Database.h"
#include "data/ErrorLog.h"
#include "data/JalaliDay.h"
#include "settings/Clock.h"

namespace sandogh {

AppContext::AppContext(QString programFolder, SettingsStore& settingsStore, const Clock& clock,
                       MessageService& messages, ProgramLauncher& launcher, RawPrinter& rawPrinter,
                       QString versionText)
    : m_programFolder(std::move(programFolder))
    , m_settingsStore(settingsStore)
    , m_machineSettings(settingsStore)
    , m_clock(clock)
    , m_messages(messages)
    , m_launcher(launcher)
    , m_rawPrinter(rawPrinter)
    , m_versionText(std::move(versionText)) {
    const QDate today = m_clock.now().date();
    m_todayJalali = JalaliDay::dateText(today);
    m_todayWeekday = JalaliDay::weekdayName(today);
    m_errorLog = std::make_unique<ErrorLog>(m_programFolder, &m_messages, m_clock, m_todayJalali,
                                            m_versionText);
}

// The database goes before the error log it reports to.
AppContext::~AppContext() {
    m_database.reset();
}

void AppContext::setDatabase(std::unique_ptr<Database> database, ConnectionSettings settings) {
    m_database = std::move(database);
    m_connectionSettings = std::move(settings);
}

void AppContext::setUser(const UserAccount& user) {
    m_user = user;
    m_errorLog->setUserName(user.userName);
}

}  // namespace sandogh
