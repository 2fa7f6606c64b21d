// A restart of the PostgreSQL server between two sales of one desk costs no sale: the
// connection the server dropped is replaced before the next sale's transaction begins.
// The test runs a server of its own, since restarting the shared one would cut off the
// other suites.

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include "SaleShopTest.h"
#include "data/Database.h"
#include "sales/SaleSaveTexts.h"
#include "sales/SaleSaver.h"
#include "sales/SaleSettlement.h"

namespace sandogh::test {
namespace {

QString pgServerScript() {
    return QStringLiteral(SANDOGH_SOURCE_DIR "/scripts/pg-server");
}

// scripts/pg-server COMMAND DIR; its output, or nothing when it failed.
QString pgServer(const QString& command, const QString& dir) {
    QProcess p;
    p.start(pgServerScript(), {command, dir});
    if (!p.waitForFinished(120000) || p.exitCode() != 0) {
        ADD_FAILURE() << "pg-server " << command.toStdString() << ": "
                      << p.readAllStandardError().toStdString();
        return {};
    }
    return QString::fromUtf8(p.readAllStandardOutput()).trimmed();
}

class ServerRestartTest : public SaleShopTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_serverDir.isValid());
        // The server may run as another user (postgres when the tests run as root).
        QFile::setPermissions(m_serverDir.path(), QFile::ReadOwner | QFile::WriteOwner |
                                                      QFile::ExeOwner | QFile::ReadOther |
                                                      QFile::ExeOther);
        m_serverPath = m_serverDir.path() + QStringLiteral("/pg");
        const QString port = pgServer(QStringLiteral("start"), m_serverPath);
        ASSERT_FALSE(port.isEmpty());
        m_started = true;
        for (const char* name : {"SANDOGH_TEST_PG_HOST", "SANDOGH_TEST_PG_PORT",
                                 "SANDOGH_TEST_PG_USER", "SANDOGH_TEST_PG_PASSWORD"}) {
            m_savedEnvironment.append({name, qgetenv(name)});
        }
        qputenv("SANDOGH_TEST_PG_HOST", "127.0.0.1");
        qputenv("SANDOGH_TEST_PG_PORT", port.toUtf8());
        qputenv("SANDOGH_TEST_PG_USER", "postgres");
        qunsetenv("SANDOGH_TEST_PG_PASSWORD");
        SaleShopTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        addGoods({QStringLiteral("2222"), 100000, 0, QStringLiteral("Rice")});
        exec(QStringLiteral("INSERT INTO tblAccountingGroup (Code, ParentCode, Name) VALUES "
                            "(101, 10, :cash), (601, 60, :income), (602, 60, :back)"),
             {{QStringLiteral(":cash"), SaleSaveTexts::cashBoxAccount()},
              {QStringLiteral(":income"), SaleSaveTexts::salesIncomeAccount()},
              {QStringLiteral(":back"), SaleSaveTexts::salesReturnAccount()}});
    }
    void TearDown() override {
        SaleShopTest::TearDown();
        for (const auto& [name, value] : m_savedEnvironment) {
            if (value.isNull()) {
                qunsetenv(name);
            } else {
                qputenv(name, value);
            }
        }
        if (m_started) {
            pgServer(QStringLiteral("stop"), m_serverPath);
        }
    }
    void restartServer() { pgServer(QStringLiteral("restart"), m_serverPath); }

private:
    QTemporaryDir m_serverDir;
    QString m_serverPath;
    bool m_started = false;
    QList<std::pair<const char*, QByteArray>> m_savedEnvironment;
};

TEST_P(ServerRestartTest, BothSalesAroundARestartAreSaved) {
    SaleSaver saver(db(), settings(), messages(), clock());
    SaleSettlement settlement;
    settlement.payType = 1;

    ASSERT_TRUE(sale().addGoods(QStringLiteral("2222")));
    SaleSettlement first = settlement;
    const SaleSaveResult before = saver.save(sale(), first);
    ASSERT_TRUE(before.saved);
    const int connects = db().physicalConnects();

    restartServer();
    // The next customer's first scan comes later than the pool's idle check, which finds
    // the dropped connection; the restart itself can be quicker than that.
    QThread::msleep(DatabaseOptions{}.idleCheckMs + 100);

    ASSERT_TRUE(sale().addGoods(QStringLiteral("2222")));
    SaleSettlement second = settlement;
    const SaleSaveResult after = saver.save(sale(), second);
    EXPECT_TRUE(after.saved);
    EXPECT_GT(db().physicalConnects(), connects);  // the dropped connection was replaced
    EXPECT_EQ(messages().count(), 0);

    Session s = db().session();
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH"), {}, -1), 2);
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM tblDocumentH"), {}, -1), 2);
}

SANDOGH_INSTANTIATE_POSTGRES_ONLY(ServerRestartTest);

}  // namespace
}  // namespace sandogh::test
