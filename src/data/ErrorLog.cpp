#include "data/ErrorLog.h"

#include <QDir>
#include <QFile>
#include <QMutexLocker>

#include "settings/Clock.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

const QString kLineEnd = QStringLiteral("\r\n");

// Lines 1 to 3: what the user is shown.
QString headLines(const AppError& error) {
    return QStringLiteral("ErrNumber : ") + error.number + kLineEnd +
           QStringLiteral("ErrDescription : ") + error.description + kLineEnd +
           QStringLiteral("ErrSource : ") + error.source + kLineEnd;
}

}  // namespace

ErrorLog::ErrorLog(QString programDir, MessageService* messages, const Clock& clock,
                   QString todayJalali, QString versionText)
    : m_programDir(std::move(programDir))
    , m_messages(messages)
    , m_clock(clock)
    , m_todayJalali(std::move(todayJalali))
    , m_versionText(std::move(versionText)) {}

void ErrorLog::setUserName(const QString& userName) {
    QMutexLocker lock(&m_mutex);
    m_userName = userName;
}

QString ErrorLog::userName() const {
    QMutexLocker lock(&m_mutex);
    return m_userName;
}

QString ErrorLog::filePath() const {
    return QDir(m_programDir).filePath(QString::fromLatin1(kFileName));
}

QString ErrorLog::formatRecord(const AppError& error, const QString& moduleName,
                               const QString& routineName) const {
    const QString time = m_clock.now().toString(QString::fromLatin1(kErrTimeFormat));
    return headLines(error) + QStringLiteral("RoutineName : ") + routineName + kLineEnd +
           QStringLiteral("Module : ") + moduleName + QStringLiteral("  ") + kLineEnd +
           QStringLiteral("UserName : ") + userName() + kLineEnd + QStringLiteral("ErrTime : ") +
           m_todayJalali + QStringLiteral("  ") + time + kLineEnd + QStringLiteral("Exe ") +
           m_versionText + kLineEnd + QString::fromLatin1(kRecordEnd) + kLineEnd;
}

void ErrorLog::LogError(const AppError& error, const QString& moduleName,
                        const QString& routineName) {
    if (m_messages != nullptr) {
        m_messages->show(headLines(error), MessageStyle::Critical);
    }
    AppendErrorLog(formatRecord(error, moduleName, routineName));
}

void ErrorLog::LogError(const AppError& error, const QString& moduleName,
                        const QString& routineName, const QString& message) {
    if (m_messages != nullptr) {
        m_messages->show(message, MessageStyle::Critical);
    }
    AppendErrorLog(formatRecord(error, moduleName, routineName));
}

bool ErrorLog::AppendErrorLog(const QString& text) {
    const QByteArray record = (QLatin1Char('"') + text + QLatin1Char('"') + kLineEnd).toUtf8();
    QMutexLocker lock(&m_mutex);
    QFile file(filePath());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        return false;
    }
    const bool written = file.write(record) == record.size();
    file.close();
    return written && file.error() == QFileDevice::NoError;
}

}  // namespace sandogh
