// Opening a new fiscal year on every backend: the new database holds every article with the
// closing stock as its opening stock, the master tables with their keys, the customers'
// balances as opening credit; the old year keeps its sales; a taken name is refused; the
// years listed are the shop's own.

#include <gtest/gtest.h>

#include "app/NewFiscalYear.h"
#include "data/DatabaseProvisioner.h"
#include "data/ShopFixture.h"
#include "support/AppTestContext.h"

namespace sandogh {
namespace {

class NewFiscalYearTest : public test::ShopBackendTest {
protected:
    void SetUp() override {
        test::ShopBackendTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        next = db().settings().catalog + QStringLiteral("_next");
        for (const char* sql : {
                 "INSERT INTO Goods (EAN_Code, Name, Cost) VALUES ('1001', 'Bread', 2500), "
                 "('2002', 'Milk', 9000), ('3003', 'Salt', 1000)",
                 "INSERT INTO Users (Name, UserName, PermissionLevel, Active) VALUES "
                 "('Owner', 'owner', 1, 1)",
                 "INSERT INTO Types (Counter, TypeNo, Name, Credit) VALUES (50, 10, 'Ali', 1000)",
                 // Bought 10 bread at 2000 and 4 milk at 7000; sold 3 bread to Ali, who paid
                 // 5000 of its 7500; 1 milk came back from a sale.
                 "INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, DocDate, DocSum) VALUES "
                 "(1, '1', 1, '1403/12/01', 48000)",
                 "INSERT INTO Whs_QTYDocD (Code, EAN_Code, Qty, Fee) VALUES (1, '1001', 10, 2000), "
                 "(1, '2002', 4, 7000)",
                 "INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, DocDate, DocSum, CompanyID, "
                 "ReceivedPrice) VALUES (2, '1', 2, '1403/12/20', 7500, 50, 5000)",
                 "INSERT INTO Whs_QTYDocD (Code, EAN_Code, Qty, Fee) VALUES (2, '1001', 3, 2500)",
                 "INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, DocDate, DocSum) VALUES "
                 "(3, '1', 3, '1403/12/21', 9000)",
                 "INSERT INTO Whs_QTYDocD (Code, EAN_Code, Qty, Fee) VALUES (3, '2002', 1, 9000)",
             }) {
            ASSERT_TRUE(exec(QString::fromLatin1(sql))) << sql;
        }
    }

    void TearDown() override {
        if (!next.isEmpty()) {
            QString ignored;
            DatabaseProvisioner::drop(db().settings().withCatalog(next), &ignored);
        }
        test::ShopBackendTest::TearDown();
    }

    QString next;
};

TEST_P(NewFiscalYearTest, TheNewYearOpensWithTheClosingStockAndTheOldYearStays) {
    const NewFiscalYear::Result result = NewFiscalYear::open(db(), next, "1404/01/01");
    ASSERT_TRUE(result.ok) << result.error.toStdString();
    EXPECT_EQ(result.articles, 2);  // salt has no stock: no line

    Database year(db().settings().withCatalog(next), nullptr);
    Session s = year.session();
    const auto number = [&s](const char* sql) {
        return s.scalarNumber(QString::fromLatin1(sql), {}, -1);
    };
    EXPECT_EQ(number("SELECT COUNT(*) FROM Goods"), 3);
    EXPECT_EQ(number("SELECT Stock FROM Stock WHERE Barcode = '1001'"), 7);
    EXPECT_EQ(number("SELECT Stock FROM Stock WHERE Barcode = '2002'"), 5);
    EXPECT_EQ(number("SELECT Stock FROM Stock WHERE Barcode = '3003'"), 0);
    // One opening document, a purchase of no supplier, priced at the last purchase.
    EXPECT_EQ(number("SELECT COUNT(*) FROM Whs_QTYDocH"), 1);
    EXPECT_EQ(number("SELECT COUNT(*) FROM Whs_QTYDocH WHERE TransType = 1 AND DocNo = '0' "
                     "AND CompanyID IS NULL AND DocDate = '1404/01/01'"),
              1);
    EXPECT_EQ(number("SELECT Fee FROM Whs_QTYDocD WHERE EAN_Code = '2002'"), 7000);
    // Users keep their keys; Ali opens owing 1000 + 7500 - 5000.
    EXPECT_EQ(number("SELECT ID FROM Users WHERE UserName = 'owner'"),
              count(QStringLiteral("SELECT ID FROM Users WHERE UserName = 'owner'")));
    EXPECT_EQ(number("SELECT Credit FROM Types WHERE Counter = 50"), 3500);
    // A user added in the new year takes the next key.
    EXPECT_TRUE(s.exec(QStringLiteral("INSERT INTO Users (Name, UserName) VALUES ('n', 'n')")));
    EXPECT_GT(number("SELECT MAX(ID) FROM Users"),
              count(QStringLiteral("SELECT MAX(ID) FROM Users WHERE UserName = 'owner'")));

    // The old year is as it was.
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH")), 3);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH WHERE TransType = 2")), 1);

    // A name taken or malformed is refused.
    for (const QString& name : {next, db().settings().catalog, QStringLiteral("1405"),
                                QStringLiteral("bad name"), QString()}) {
        const NewFiscalYear::Result r = NewFiscalYear::open(db(), name, "1404/01/01");
        EXPECT_FALSE(r.ok) << name.toStdString();
        EXPECT_FALSE(r.error.isEmpty());
    }
}

// The chooser lists the shop's years from any of them; on a server another shop's database
// (or any other) is no year of this shop, while on SQLite the shop's folder holds its years.
TEST_P(NewFiscalYearTest, TheYearsAreTheShopsOwnFromAnyYear) {
    ASSERT_TRUE(NewFiscalYear::open(db(), next, "1404/01/01").ok);
    Database nextYear(db().settings().withCatalog(next), nullptr);
    const QString third = db().settings().catalog + QStringLiteral("_third");
    const ConnectionSettings stranger =
        db().settings().withCatalog(db().settings().catalog + QStringLiteral("_stranger"));
    ASSERT_TRUE(NewFiscalYear::open(nextYear, third, "1405/01/01").ok);
    ASSERT_NE(DatabaseProvisioner::ensureExists(stranger, nullptr),
              DatabaseProvisioner::Outcome::Failed);
    const bool server = db().settings().backend != Backend::SQLite;
    for (const QString& from : {db().settings().catalog, next, third}) {
        SCOPED_TRACE(from.toStdString());
        const QStringList years = NewFiscalYear::years(db().settings().withCatalog(from));
        for (const QString& year : {db().settings().catalog, next, third}) {
            EXPECT_TRUE(years.contains(year)) << year.toStdString();
        }
        EXPECT_EQ(years.contains(stranger.catalog), !server);
    }
    QString ignored;
    DatabaseProvisioner::drop(db().settings().withCatalog(third), &ignored);
    DatabaseProvisioner::drop(stranger, &ignored);
}

SANDOGH_INSTANTIATE_BACKENDS(NewFiscalYearTest);

}  // namespace
}  // namespace sandogh
