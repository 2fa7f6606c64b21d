#pragma once

#include <QString>

#include "data/AppError.h"

namespace sandogh {

class ErrorLog;

// The connection file Provider.txt of the program folder: six lines, each one
// "key=value;" pair of the connection string, concatenated as written. The catalog
// line may be overridden by the fiscal year chosen on this machine.
class ConnectionFile {
public:
    static constexpr const char* kFileName = "Provider.txt";
    static constexpr int kLineCount = 6;

    // What the start-up tells when the file cannot be read, whatever the reason.
    static QString missingMessage() {
        return QStringLiteral("فايل Provider.txt در مسير برنامه موجود نيست!");
    }

    // log may be null; a failure is then only kept in lastError().
    ConnectionFile(QString programDir, ErrorLog* log);

    // Reads the file into connectionString(). currentDatabaseName is the fiscal-year
    // database of the machine's settings (section "Year", key "Year"), empty for none.
    // False on a missing file, fewer than six lines or a recognised line shorter than
    // its key; the failure is logged (module "MainModule", routine "LoadPrimary").
    bool LoadPrimary(const QString& currentDatabaseName);

    // ConnectionString: the assembled string; empty before a successful LoadPrimary.
    const QString& connectionString() const { return m_connectionString; }
    // The catalog value as the file names it (before any fiscal-year override).
    const QString& fileCatalog() const { return m_fileCatalog; }
    const AppError& lastError() const { return m_lastError; }
    QString filePath() const;

private:
    bool fail(const AppError& error);

    QString m_programDir;
    ErrorLog* m_log;
    QString m_connectionString;
    QString m_fileCatalog;
    AppError m_lastError;
};

}  // namespace sandogh
