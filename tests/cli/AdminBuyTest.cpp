// sandogh-admin buy: its lines and options, what it prints, and its refusals.

#include <gtest/gtest.h>

#include "AdminShopTest.h"
#include "purchase/PurchaseTexts.h"

namespace sandogh {
namespace {

class AdminBuyTest : public AdminShopTest {
protected:
    void SetUp() override {
        AdminShopTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        execAll({
            "INSERT INTO Goods (EAN_Code, Name, Cost) VALUES ('1001', 'Bread', 2500), "
            "('3003', 'Oil', 100000)",
            "INSERT INTO Users (Name, UserName, Active) VALUES ('Clerk', 'clerk', 1)",
            "INSERT INTO tblAccountingGroup (Code, ParentCode, Name) VALUES (301, 30, 'P'), "
            "(401, 40, 'S')",
            "INSERT INTO Types (Counter, TypeNo, Name, Active, AccountingGroupID) SELECT 601, "
            "11, 'S', 1, ID FROM tblAccountingGroup WHERE Code = 401",
            "INSERT INTO Types (Counter, TypeNo, Name, Active) VALUES (602, 11, 'T', 1)",
        });
        group = QString::number(
            count(QStringLiteral("SELECT ID FROM tblAccountingGroup WHERE Code = 301")));
    }
    AdminProcess::Result buy(const char* rest, const char* supplier = "601") {
        return runCommand(QStringLiteral("buy"), words("--user clerk --supplier")
                                                     << QString::fromLatin1(supplier)
                                                     << QStringLiteral("--group") << group
                                                     << words(rest));
    }
    QString group;
};

TEST_P(AdminBuyTest, SavesLinesWithTheirTermsOrTheLastOnesAndPrintsTheDocument) {
    AdminProcess::Result r = buy("--date 1404/2/3 --discount 100 1001:4:1000:10%:9 3003");
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("Code=1 DocNo=1 DocSum=3924\n"));

    r = buy("--return 1001:2");
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("Code=2 DocNo=1 DocSum=1962\n"));

    r = buy("--number 880 3003::250");
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("Code=3 DocNo=880 DocSum=250\n"));

    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH WHERE Code = 1 AND "
                                   "DocDate = '1404/02/03' AND Discount = 100")),
              1);
}

TEST_P(AdminBuyTest, RefusalsPrintTheirMessageAndBadWordsTheUsage) {
    struct Case {
        const char* rest;
        const char* supplier;
        int exit;
        QString err;
    };
    const QList<Case> cases = {
        {"1001", "602", 1, PurchaseTexts::supplierWithoutAccount()},
        {"1001:x", "601", 2, QStringLiteral("bad term")},
        {"1001:1:2:3:4:5", "601", 2, QStringLiteral("bad LINE")},
        {"", "601", 2, QStringLiteral("no LINE")},
        {"1001", "x", 2, QStringLiteral("--supplier")},
    };
    for (const Case& c : cases) {
        const AdminProcess::Result r = buy(c.rest, c.supplier);
        EXPECT_EQ(r.exitCode, c.exit) << c.rest;
        EXPECT_TRUE(QString::fromUtf8(r.err).contains(c.err)) << r.err.toStdString();
        EXPECT_TRUE(r.outText().isEmpty());
    }
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH")), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM tblDocumentH")), 0);
}

SANDOGH_INSTANTIATE_BACKENDS(AdminBuyTest);

}  // namespace
}  // namespace sandogh
