// Saving processes killed at random moments: whatever had been committed is whole and
// nothing else is there. Every sale a killed run printed is in the database.

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QProcess>
#include <QRegularExpression>
#include <random>

#include "AdminProcess.h"
#include "AdminShopTest.h"
#include "data/Database.h"
#include "data/SqlQuery.h"

namespace sandogh {
namespace {

// The run stops at whichever comes first after the least number of kills.
constexpr int kLeastKills = 30;
constexpr int kMostKills = 60;
constexpr qint64 kRunBudgetMs = 60000;
// A kill falls somewhere between the start of the process and this many milliseconds
// after it: the early ones hit the start-up, the late ones the saving loop.
constexpr int kLatestKillMs = 2000;
constexpr unsigned kSeed = 20261124;

class AdminCrashTest : public AdminShopTest {
protected:
    void SetUp() override {
        AdminShopTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        execAll({
            "INSERT INTO Goods (EAN_Code, Name, Cost, Cost2, TaxValue) VALUES "
            "('1001', 'Bread', 2500, 2600, 0), ('3003', 'Oil', 100000, 0, 0)",
            "INSERT INTO Stations (ID, Station_Name) VALUES (1, 'Desk 1')",
            "INSERT INTO Users (Name, UserName, Active) VALUES ('Cashier', 'cashier', 1)",
            "INSERT INTO tblPaymentType (Code, Name) VALUES (1, 'Cash')",
        });
    }
    QStringList saleWords(int repeat) {
        return ((words("sell --dir") << dir()) + words("--user cashier --station 1 --repeat")
                << QString::number(repeat)) +
               words("1001 3003 1001");
    }
};

TEST_P(AdminCrashTest, KilledSavingRunsLeaveOnlyWholeSales) {
    std::mt19937 random(kSeed);
    std::uniform_int_distribution<int> delay(0, kLatestKillMs);
    const QRegularExpression printed(QStringLiteral("^Code=(\\d+) DocNo=(\\d+) "),
                                     QRegularExpression::MultilineOption);
    QList<qint64> printedCodes;
    int kills = 0;
    int finished = 0;
    const QDeadlineTimer budget(kRunBudgetMs);
    while (kills < kMostKills && (kills < kLeastKills || !budget.hasExpired())) {
        QProcess desk;
        desk.start(AdminProcess::binaryPath(), saleWords(1000));
        ASSERT_TRUE(desk.waitForStarted());
        // Waiting for the end with a time limit is the random moment of the kill.
        if (desk.waitForFinished(delay(random))) {
            ++finished;
        } else {
            desk.kill();
            ASSERT_TRUE(desk.waitForFinished());
            ++kills;
        }
        auto it = printed.globalMatch(QString::fromUtf8(desk.readAllStandardOutput()));
        while (it.hasNext()) {
            printedCodes << it.next().captured(1).toLongLong();
        }
    }
    RecordProperty("kills", kills);
    std::printf("[ crash    ] %s: %d kills, %d runs ended by themselves, %d sales printed\n",
                backendName(GetParam()).toUtf8().constData(), kills, finished,
                int(printedCodes.size()));
    EXPECT_GE(kills, kLeastKills);

    // After the kills a desk saves as before.
    const AdminProcess::Result after = AdminProcess::run(saleWords(2));
    ASSERT_EQ(after.exitCode, 0) << after.err.toStdString();

    const qint64 headers = count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH"));
    EXPECT_GE(headers, printedCodes.size() + 2);
    for (const qint64 code : std::as_const(printedCodes)) {
        Session s = db().session();
        EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH WHERE Code = :c"),
                                {{QStringLiteral(":c"), code}}, -1),
                  1)
            << "printed sale " << code;
    }
    // Every sale whole (the repeated bread is one line), no number twice.
    expectWholeSales(headers);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(DISTINCT DocNo) FROM Whs_QTYDocH")), headers);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(DISTINCT Code) FROM tblDocumentH")), headers);
    // Stock is what the lines make of it.
    for (const char* barcode : {"1001", "3003"}) {
        Session s = db().session();
        const SqlBinds bind{{QStringLiteral(":b"), QString::fromLatin1(barcode)}};
        const qint64 stock = s.scalarInt64(
            QStringLiteral("SELECT CAST(Stock AS BIGINT) FROM Stock WHERE Barcode = :b"), bind, -1);
        const qint64 lines = s.scalarInt64(
            QStringLiteral("SELECT CAST(-SUM(Qty) AS BIGINT) FROM Whs_QTYDocD WHERE EAN_Code = :b"),
            bind, -1);
        EXPECT_EQ(stock, lines) << barcode;
    }
}

SANDOGH_INSTANTIATE_BACKENDS(AdminCrashTest);

}  // namespace
}  // namespace sandogh
