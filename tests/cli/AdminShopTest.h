#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <initializer_list>

#include "AdminProcess.h"
#include "data/Database.h"
#include "support/BackendTest.h"

namespace sandogh {

// A program folder whose Provider.txt names the test database, prepared by
// sandogh-admin init-db, with this machine's settings in a temporary folder.
class AdminShopTest : public test::BackendTest {
protected:
    void SetUp() override {
        BackendTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        ASSERT_TRUE(settings.isValid());
        qputenv("SANDOGH_SETTINGS", settings.path().toUtf8());
        QFile provider(QDir(dir()).filePath(QStringLiteral("Provider.txt")));
        ASSERT_TRUE(provider.open(QIODevice::WriteOnly));
        provider.write(testDatabase().providerText().toUtf8());
        provider.close();
        const AdminProcess::Result init =
            AdminProcess::run({QStringLiteral("init-db"), QStringLiteral("--dir"), dir()});
        ASSERT_EQ(init.exitCode, 0) << init.err.toStdString();
    }
    void TearDown() override {
        qunsetenv("SANDOGH_SETTINGS");
        BackendTest::TearDown();
    }
    QString dir() { return testDatabase().programDir(); }

    // Runs each statement on the shop; fails the test at the first that fails.
    void execAll(std::initializer_list<const char*> statements) {
        Session s = db().session();
        for (const char* sql : statements) {
            ASSERT_TRUE(s.exec(QString::fromLatin1(sql))) << sql;
        }
    }
    // Field 0 of the first row; -1 when the statement failed.
    qint64 scalar(const QString& sql) {
        Session s = db().session();
        return s.scalarInt64(sql, {}, -1);
    }

    // sandogh-admin COMMAND --dir DIR WORDS...
    AdminProcess::Result runCommand(const QString& command, QStringList words) {
        words.prepend(dir());
        words.prepend(QStringLiteral("--dir"));
        words.prepend(command);
        return AdminProcess::run(words);
    }

    QTemporaryDir settings;
};

}  // namespace sandogh
