#pragma once

#include <QMutex>
#include <QString>

#include "data/AppError.h"

namespace sandogh {

class Clock;
class MessageService;

// The append-only error log ErrorLog.txt of the program folder. Each error adds one
// record of nine lines, shown in part to the user first. Safe to call from any thread.
class ErrorLog {
public:
    static constexpr const char* kFileName = "ErrorLog.txt";
    // Time field of line 7: hour, minute and then the DAY OF THE MONTH, not the seconds.
    // Logs written since the first cash desk read this way, and support tools parse it so.
    static constexpr const char* kErrTimePattern = "HH:MM:DD";
    // The same pattern in QDateTime::toString notation.
    static constexpr const char* kErrTimeFormat = "hh:mm:dd";
    // Line 9 closes every record: an asterisk, 46 hyphens, an asterisk.
    static constexpr const char* kRecordEnd = "*----------------------------------------------*";

    // todayJalali: today as Jalali date text, computed once at start by the caller.
    // versionText: the program's version as the status bar shows it.
    // messages may be null (nothing is shown then).
    ErrorLog(QString programDir, MessageService* messages, const Clock& clock, QString todayJalali,
             QString versionText);

    ErrorLog(const ErrorLog&) = delete;
    ErrorLog& operator=(const ErrorLog&) = delete;

    // The login name of the current user; empty before login.
    void setUserName(const QString& userName);
    QString userName() const;

    // Shows the first three lines of the record (critical style) and appends the
    // whole record to the file.
    void LogError(const AppError& error, const QString& moduleName, const QString& routineName);
    // The same record, with the user shown the message (critical style) in place of the
    // first three lines: a failure that the program can name in the user's words.
    void LogError(const AppError& error, const QString& moduleName, const QString& routineName,
                  const QString& message);

    // Appends text as one quoted value: a double quote, the text, a double quote and
    // a line end. Creates the file when it does not exist. False when it cannot write.
    bool AppendErrorLog(const QString& text);

    // The nine lines of a record, each ended by CR LF.
    QString formatRecord(const AppError& error, const QString& moduleName,
                         const QString& routineName) const;

    QString filePath() const;

private:
    QString m_programDir;
    MessageService* m_messages;
    const Clock& m_clock;
    QString m_todayJalali;
    QString m_versionText;
    mutable QMutex m_mutex;
    QString m_userName;
};

}  // namespace sandogh
