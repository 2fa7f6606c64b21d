// sandogh-admin init-db: creates the database the connection file names and brings it
// to the last migration step; a missing or short connection file ends with the
// start-up's message.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "AdminProcess.h"
#include "data/DatabaseProvisioner.h"
#include "data/schema/ShopSchema.h"
#include "support/TestDatabase.h"

namespace sandogh {
namespace {

const QString kMissingMessage = QStringLiteral("فايل Provider.txt در مسير برنامه موجود نيست!");

class InitDbTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(program.isValid() && settings.isValid());
        // The machine's settings of the child process: an empty Retail.ini of our own.
        qputenv("SANDOGH_SETTINGS", settings.path().toUtf8());
    }
    void TearDown() override { qunsetenv("SANDOGH_SETTINGS"); }

    void writeProvider(const QStringList& lines) {
        QFile f(QDir(program.path()).filePath(QStringLiteral("Provider.txt")));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        for (const QString& line : lines) {
            f.write(line.toUtf8() + "\r\n");
        }
    }
    void chooseFiscalYear(const QString& database) {
        QFile f(QDir(settings.path()).filePath(QStringLiteral("Retail.ini")));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("[Year]\nYear=" + database.toUtf8() + "\n");
    }
    AdminProcess::Result initDb() {
        return AdminProcess::run(
            {QStringLiteral("init-db"), QStringLiteral("--dir"), program.path()});
    }
    QString path(const QString& relative) const { return QDir(program.path()).filePath(relative); }

    static QStringList sqliteProvider() {
        return {QStringLiteral("Provider=SQLite;"),
                QStringLiteral("Data Source=Data;"),
                QStringLiteral("Initial Catalog=Shop;"),
                QStringLiteral("User ID=;"),
                QStringLiteral("Password=;"),
                QStringLiteral("Persist Security Info=False;")};
    }
    static QString lastVersion() { return QString::number(shopMigrations().last().version); }

    QTemporaryDir program;
    QTemporaryDir settings;
};

TEST_F(InitDbTest, CreatesTheSqliteFileThenFindsItUpToDate) {
    writeProvider(sqliteProvider());
    const AdminProcess::Result first = initDb();
    ASSERT_TRUE(first.started);
    EXPECT_EQ(first.exitCode, 0) << first.err.toStdString();
    EXPECT_TRUE(first.outText().contains(QStringLiteral("created the database")));
    EXPECT_TRUE(first.outText().contains(QStringLiteral("schema version 0 -> ") + lastVersion()))
        << first.outText().toStdString();
    EXPECT_TRUE(QFile::exists(path(QStringLiteral("Data/Shop.sqlite"))));

    const AdminProcess::Result again = initDb();
    EXPECT_EQ(again.exitCode, 0) << again.err.toStdString();
    EXPECT_TRUE(again.outText().contains(
        QStringLiteral("schema version %1 -> %1 (up to date)").arg(lastVersion())))
        << again.outText().toStdString();
}

TEST_F(InitDbTest, AMissingOrShortConnectionFileEndsWithTheStartUpMessage) {
    const struct {
        const char* name;
        QStringList lines;  // empty: no file at all
    } cases[] = {{"missing", {}}, {"five lines", sqliteProvider().mid(0, 5)}};
    for (const auto& c : cases) {
        QFile::remove(path(QStringLiteral("Provider.txt")));
        QFile::remove(path(QStringLiteral("ErrorLog.txt")));
        if (!c.lines.isEmpty()) {
            writeProvider(c.lines);
        }
        const AdminProcess::Result r = initDb();
        EXPECT_EQ(r.exitCode, 1) << c.name;
        EXPECT_TRUE(QString::fromUtf8(r.err).contains(kMissingMessage)) << c.name;
        EXPECT_FALSE(QDir(path(QStringLiteral("Data"))).exists()) << c.name;
        QFile log(path(QStringLiteral("ErrorLog.txt")));
        ASSERT_TRUE(log.open(QIODevice::ReadOnly)) << c.name;
        EXPECT_TRUE(
            log.readAll().contains("RoutineName : LoadPrimary\r\nModule : MainModule  \r\n"))
            << c.name;
    }
}

TEST_F(InitDbTest, CreatesThePostgresDatabase) {
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
    const AdminProcess::Result r = initDb();
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_TRUE(r.outText().contains(QStringLiteral("created the database")));
    bool exists = false;
    ASSERT_TRUE(DatabaseProvisioner::exists(target, exists, nullptr));
    EXPECT_TRUE(exists);
    const AdminProcess::Result again = initDb();
    EXPECT_TRUE(again.outText().contains(QStringLiteral("(up to date)")));
    EXPECT_TRUE(DatabaseProvisioner::drop(target, nullptr));
}

}  // namespace
}  // namespace sandogh
