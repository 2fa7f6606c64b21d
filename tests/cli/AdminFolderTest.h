#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include "AdminProcess.h"

namespace sandogh {

// A program folder of its own and this machine's settings in a temporary folder, for the
// commands that make or open the shop file themselves.
class AdminFolderTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(program.isValid() && settings.isValid());
        qputenv("SANDOGH_SETTINGS", settings.path().toUtf8());
    }
    void TearDown() override { qunsetenv("SANDOGH_SETTINGS"); }

    // sandogh-admin COMMAND --dir PROGRAM WORDS...
    AdminProcess::Result run(const QString& command, const QStringList& words = {}) {
        return AdminProcess::run(QStringList{command, QStringLiteral("--dir"), program.path()} +
                                 words);
    }
    QString path(const QString& relative) const { return QDir(program.path()).filePath(relative); }

    void writeProvider(const QStringList& lines) {
        QFile f(path(QStringLiteral("Provider.txt")));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        for (const QString& line : lines) {
            f.write(line.toUtf8() + "\r\n");
        }
    }
    static QStringList sqliteProvider(const QString& folder = QStringLiteral("Data"),
                                      const QString& catalog = QStringLiteral("Shop")) {
        return {QStringLiteral("Provider=SQLite;"),
                QStringLiteral("Data Source=%1;").arg(folder),
                QStringLiteral("Initial Catalog=%1;").arg(catalog),
                QStringLiteral("User ID=;"),
                QStringLiteral("Password=;"),
                QStringLiteral("Persist Security Info=False;")};
    }
    void chooseFiscalYear(const QString& database) {
        QFile f(QDir(settings.path()).filePath(QStringLiteral("Retail.ini")));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("[Year]\nYear=" + database.toUtf8() + "\n");
    }

    QTemporaryDir program;
    QTemporaryDir settings;
};

}  // namespace sandogh
