#pragma once

// An application context for tests of the program's start-up, login and screens: a
// temporary program folder and settings file, a fixed clock, recorded messages, program
// starts and raw print jobs. Header-only: only the suites that link sandogh_app use it.

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QStringList>
#include <QTemporaryDir>
#include <memory>

#include "app/AppContext.h"
#include "data/Database.h"
#include "settings/QSettingsStore.h"
#include "support/FixedClock.h"
#include "support/LaunchRecorder.h"
#include "support/RawPrintRecorder.h"
#include "support/RecordingMessageService.h"
#include "support/TestDatabase.h"

namespace sandogh::test {

class AppTestContext {
public:
    // The program folder is a temporary one unless programFolder names another (the folder
    // of a test database). The clock stands at 21 March 2025, 1404/01/01, a Friday.
    explicit AppTestContext(const QString& programFolder = {})
        : m_folderPath(programFolder.isEmpty() ? folder.path() : programFolder)
        , settings(QStringLiteral("Retail"), folder.filePath(QStringLiteral("Retail.ini")))
        , context(m_folderPath, settings, clock, messages, launcher, printer,
                  QStringLiteral("Sandogh test")) {}

    QString programFolder() const { return m_folderPath; }
    QString path(const QString& relative) const { return QDir(m_folderPath).filePath(relative); }

    // Writes a file of the program folder, making its folders.
    bool writeFile(const QString& relative, const QByteArray& content) const {
        const QString file = path(relative);
        QDir().mkpath(QFileInfo(file).absolutePath());
        QFile f(file);
        return f.open(QIODevice::WriteOnly) && f.write(content) == content.size();
    }

    // Hands the context a Database of its own on the test database.
    void useDatabase(const TestDatabase& testDatabase) {
        context.setDatabase(
            std::make_unique<Database>(testDatabase.settings(), &messages, &context.errorLog()),
            testDatabase.settings());
    }

    QTemporaryDir folder;

private:
    QString m_folderPath;

public:
    QSettingsStore settings;
    FixedClock clock;
    RecordingMessageService messages;
    LaunchRecorder launcher;
    RawPrintRecorder printer;
    AppContext context;
};

}  // namespace sandogh::test
