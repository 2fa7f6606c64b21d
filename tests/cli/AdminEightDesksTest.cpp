// Eight cash desks saving a hundred sales each at the same moment on one database: every
// sale is written whole, under its own invoice number, and Stock agrees with the full
// recompute afterwards.

#include <gtest/gtest.h>

#include <QFile>
#include <QMap>
#include <QProcess>
#include <memory>

#include "AdminProcess.h"
#include "AdminShopTest.h"
#include "data/Database.h"
#include "data/SqlQuery.h"
#include "support/BackendTest.h"

namespace sandogh {
namespace {

constexpr int kDesks = 8;
constexpr int kSales = 100;

class AdminEightDesksTest : public AdminShopTest {
protected:
    void SetUp() override {
        AdminShopTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        execAll({
            "INSERT INTO Goods (EAN_Code, Name, Cost, Cost2, TaxValue) VALUES "
            "('1001', 'Bread', 2500, 0, 0), ('3003', 'Oil', 100000, 0, 0)",
            "INSERT INTO Stock (Barcode, Import, Export, Stock, Branch) VALUES "
            "('1001', 0, 0, 0, 1), ('3003', 0, 0, 0, 1)",
            "INSERT INTO Stations (ID, Station_Name) VALUES (1, 'D1'), (2, 'D2'), "
            "(3, 'D3'), (4, 'D4'), (5, 'D5'), (6, 'D6'), (7, 'D7'), (8, 'D8')",
            "INSERT INTO Users (Name, UserName, Active) VALUES ('Cashier', 'cashier', 1)",
            "INSERT INTO tblPaymentType (Code, Name) VALUES (1, 'Cash')",
        });
    }

    void setDailyNumbering(bool daily) {
        QFile ini(settings.filePath(QStringLiteral("Retail.ini")));
        ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
        ini.write(daily ? "[Tools]\nIsResetFactorNo=1\n" : "[Tools]\nIsResetFactorNo=0\n");
    }

    QMap<QString, double> stock() {
        Session s = db().session();
        SqlQuery q(s, QStringLiteral("SELECT Barcode, Stock FROM Stock"));
        EXPECT_TRUE(q.exec());
        QMap<QString, double> rows;
        while (q.next()) {
            rows.insert(q.text(0), q.number(1));
        }
        return rows;
    }

    // Desk n sells (a return on every fourth desk) on one of two dates.
    void runDesks() {
        std::vector<std::unique_ptr<QProcess>> desks;
        for (int desk = 1; desk <= kDesks; ++desk) {
            QStringList line = (words("sell --dir") << dir()) + words("--user cashier --station");
            line << QString::number(desk) << QStringLiteral("--date")
                 << (desk % 2 != 0 ? QStringLiteral("1404/01/05") : QStringLiteral("1404/01/06"))
                 << QStringLiteral("--repeat") << QString::number(kSales);
            if (desk % 4 == 0) {
                line << QStringLiteral("--return");
            }
            desks.push_back(std::make_unique<QProcess>());
            desks.back()->start(AdminProcess::binaryPath(), line + words("1001 3003 1001"));
        }
        for (const auto& p : desks) {
            ASSERT_TRUE(p->waitForFinished(600000));
            EXPECT_EQ(p->exitCode(), 0) << p->readAllStandardError().toStdString();
            EXPECT_EQ(p->readAllStandardOutput().count("Code="), kSales);
        }
    }

    void expectEveryDocumentWhole(const QString& numberRun) {
        const qint64 all = kDesks * kSales;
        EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM (SELECT DISTINCT ") + numberRun +
                        QStringLiteral(", DocNo FROM Whs_QTYDocH) Numbers")),
                  all);
        // Each run of numbers is 1..n without a gap.
        EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM (SELECT ") + numberRun +
                        QStringLiteral(" FROM Whs_QTYDocH GROUP BY ") + numberRun +
                        QStringLiteral(" HAVING MAX(CAST(DocNo AS BIGINT)) <> COUNT(*)) Runs")),
                  0);
        // Every sale whole (the two breads merge).
        expectWholeSales(all);
        // A voucher note names its own document's number.
        EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH H INNER JOIN "
                                       "tblDocumentH V ON V.ID = H.DocumentHID WHERE V.Serial = "
                                       "H.DocNo")),
                  all);

        const QMap<QString, double> followed = stock();
        const AdminProcess::Result repair = runCommand(QStringLiteral("stock-repair"), {});
        ASSERT_EQ(repair.exitCode, 0) << repair.err.toStdString();
        EXPECT_EQ(stock(), followed);
        // Six desks sold, two took back: 2 x 100 x (6 - 2) of bread.
        EXPECT_DOUBLE_EQ(followed.value(QStringLiteral("1001")), -2.0 * kSales * (6 - 2));
    }
};

TEST_P(AdminEightDesksTest, OneNumberRunPerKind) {
    setDailyNumbering(false);
    runDesks();
    expectEveryDocumentWhole(QStringLiteral("TransType"));
}

TEST_P(AdminEightDesksTest, OneNumberRunPerKindAndDayUnderDailyNumbering) {
    setDailyNumbering(true);
    runDesks();
    expectEveryDocumentWhole(QStringLiteral("TransType, DocDate"));
}

SANDOGH_INSTANTIATE_BACKENDS(AdminEightDesksTest);

}  // namespace
}  // namespace sandogh
