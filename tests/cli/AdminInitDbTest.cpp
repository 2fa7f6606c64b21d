// sandogh-admin init-db: creates the database the connection file names and brings it to
// the last migration step, on SQLite beside the scale vendors' files and on PostgreSQL; a
// missing or short connection file ends with the start-up's message.

#include <gtest/gtest.h>

#include <QCoreApplication>

#include "AdminFolderTest.h"
#include "data/DatabaseProvisioner.h"
#include "data/schema/ShopSchema.h"
#include "support/TestDatabase.h"

namespace sandogh {
namespace {

const QString kMissingMessage = QStringLiteral("فايل Provider.txt در مسير برنامه موجود نيست!");

class AdminInitDbTest : public AdminFolderTest {
protected:
    static QString lastVersion() { return QString::number(shopMigrations().last().version); }
};

TEST_F(AdminInitDbTest, CreatesTheSqliteFileThenFindsItUpToDateAndBuildsTheNextYearBesideIt) {
    writeProvider(sqliteProvider());
    const AdminProcess::Result first = run(QStringLiteral("init-db"));
    ASSERT_TRUE(first.started);
    EXPECT_EQ(first.exitCode, 0) << first.err.toStdString();
    EXPECT_TRUE(first.outText().contains(QStringLiteral("created the database")));
    EXPECT_TRUE(first.outText().contains(QStringLiteral("schema version 0 -> ") + lastVersion()))
        << first.outText().toStdString();
    EXPECT_TRUE(QFile::exists(path(QStringLiteral("Data/Shop.sqlite"))));
    EXPECT_TRUE(QFile::exists(path(QStringLiteral("Data/MizanNet.sqlite"))));

    const AdminProcess::Result again = run(QStringLiteral("init-db"));
    EXPECT_EQ(again.exitCode, 0) << again.err.toStdString();
    EXPECT_TRUE(again.outText().contains(
        QStringLiteral("schema version %1 -> %1 (up to date)").arg(lastVersion())))
        << again.outText().toStdString();

    // The next year's file beside the scale vendors' files, which stay as they are.
    chooseFiscalYear(QStringLiteral("Shop1405"));
    const AdminProcess::Result year = run(QStringLiteral("init-db"));
    EXPECT_EQ(year.exitCode, 0) << year.err.toStdString();
    EXPECT_TRUE(year.outText().contains(QStringLiteral("schema version 0 -> ") + lastVersion()))
        << year.outText().toStdString();
}

TEST_F(AdminInitDbTest, AMissingOrShortConnectionFileEndsWithTheStartUpMessage) {
    for (const QStringList& lines : {QStringList(), sqliteProvider().mid(0, 5)}) {
        QFile::remove(path(QStringLiteral("Provider.txt")));
        QFile::remove(path(QStringLiteral("ErrorLog.txt")));
        if (!lines.isEmpty()) {
            writeProvider(lines);
        }
        const AdminProcess::Result r = run(QStringLiteral("init-db"));
        EXPECT_EQ(r.exitCode, 1) << lines.size();
        EXPECT_TRUE(QString::fromUtf8(r.err).contains(kMissingMessage)) << lines.size();
        EXPECT_FALSE(QDir(path(QStringLiteral("Data"))).exists()) << lines.size();
        EXPECT_TRUE(QFile::exists(path(QStringLiteral("ErrorLog.txt")))) << lines.size();
    }
}

TEST_F(AdminInitDbTest, CreatesThePostgresDatabase) {
    if (!test::TestDatabase::postgresConfigured()) {
        if (test::TestDatabase::postgresRequired()) {
            FAIL() << "SANDOGH_REQUIRE_PG=1 but SANDOGH_TEST_PG_HOST is not set";
        }
        GTEST_SKIP()
            << "PostgreSQL is not configured (SANDOGH_TEST_PG_HOST); this test did NOT run";
    }
    ConnectionSettings server = test::TestDatabase::postgresServer();
    const QString name =
        QStringLiteral("sandogh_initdb_%1").arg(QCoreApplication::applicationPid());
    ConnectionSettings target = server.withCatalog(name);
    DatabaseProvisioner::drop(target, nullptr);
    writeProvider({QStringLiteral("Provider=PostgreSQL;"),
                   QStringLiteral("Data Source=%1,%2;").arg(server.host).arg(server.port),
                   QStringLiteral("Initial Catalog=%1;").arg(name),
                   QStringLiteral("User ID=%1;").arg(server.user),
                   QStringLiteral("Password=%1;").arg(server.password),
                   QStringLiteral("Persist Security Info=False;")});
    const AdminProcess::Result r = run(QStringLiteral("init-db"));
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_TRUE(r.outText().contains(QStringLiteral("created the database")));
    bool exists = false;
    ASSERT_TRUE(DatabaseProvisioner::exists(target, exists, nullptr));
    EXPECT_TRUE(exists);
    EXPECT_TRUE(run(QStringLiteral("init-db")).outText().contains(QStringLiteral("(up to date)")));
    EXPECT_TRUE(DatabaseProvisioner::drop(target, nullptr));
}

}  // namespace
}  // namespace sandogh
