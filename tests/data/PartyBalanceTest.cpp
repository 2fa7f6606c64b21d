// A party's figures over its documents, and the purchases waiting for a voucher.

#include "ShopFixture.h"
#include "data/repositories/PartyBalance.h"
#include "data/repositories/VoucherLinks.h"
#include "support/QtPrinters.h"

namespace sandogh {
namespace {

using namespace procedures;

class PartyBalanceTest : public test::ShopFixture {
protected:
    void addParty(int counter, std::optional<double> credit) {
        Session s = session();
        SqlQuery q(
            s, QStringLiteral(
                   "INSERT INTO Types (Counter, TypeNo, Name, Credit) VALUES (:c, 10, :n, :cr)"));
        q.bind(QStringLiteral(":c"), counter).bind(QStringLiteral(":n"), QStringLiteral("x"));
        if (credit) {
            q.bind(QStringLiteral(":cr"), *credit);
        } else {
            q.bindNull(QStringLiteral(":cr"), ColumnType::Money);
        }
        ASSERT_TRUE(q.exec());
    }

    qint64 addPartyDocument(int transType, int party, double docSum, double received,
                            std::optional<qint64> voucher = std::nullopt,
                            std::optional<int> docType = std::nullopt) {
        procedures::StockDocumentHeader h;
        h.docNo = QString::number(docSum);
        h.transType = transType;
        h.companyId = party;
        h.docDate = QString();
        h.docSum = docSum;
        h.receivedPrice = received;
        h.documentHId = voucher;
        h.docType = docType;
        return writeDocument(h, {}, false);
    }
};

TEST_P(PartyBalanceTest, SalesPlusCreditReceivedWithOtherPaymentsReturnsApart) {
    addParty(1, 1000);
    addParty(2, std::nullopt);
    const qint64 sale1 = addPartyDocument(kSale, 1, 50000, 30000);
    addPartyDocument(kSale, 1, 20000, 20000);
    addPartyDocument(kSaleReturn, 1, 7000, 7000);
    addPartyDocument(kPurchase, 1, 99999, 0);  // a purchase is no sale
    addPartyDocument(kSale, 2, 5000, 0);       // another party
    Session s = session();
    ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO OtherPayment (Code, CompanyID, TransType, "
                                      "ReceivedPrice) VALUES (:code, 1, 2, :amount)"),
                       {{QStringLiteral(":code"), sale1}, {QStringLiteral(":amount"), 15000}}));
    ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO OtherPayment (Code, CompanyID, TransType, "
                                      "ReceivedPrice) VALUES (:code, 1, 2, :amount)"),
                       {{QStringLiteral(":code"), 999}, {QStringLiteral(":amount"), 1}}));
    const PartyBalance::Totals one = PartyBalance(db()).totals(1);
    EXPECT_DOUBLE_EQ(one.salesTotal, 70000 + 1000);
    EXPECT_DOUBLE_EQ(one.credit, 1000);
    EXPECT_DOUBLE_EQ(one.receivedTotal, 50000 + 15000);
    EXPECT_DOUBLE_EQ(one.returnsTotal, 7000);
    EXPECT_EQ(one.purchaseCount, 2);
    // Without a credit the sales still add up.
    const PartyBalance::Totals two = PartyBalance(db()).totals(2);
    EXPECT_DOUBLE_EQ(two.salesTotal, 5000);
    EXPECT_EQ(two.purchaseCount, 1);
    // A party without documents has nothing.
    const PartyBalance::Totals unknown = PartyBalance(db()).totals(42);
    EXPECT_EQ(unknown.salesTotal, 0);
    EXPECT_EQ(unknown.receivedTotal, 0);
    EXPECT_EQ(unknown.purchaseCount, 0);
}

TEST_P(PartyBalanceTest, OrphanedVoucherLinksAreReleasedAndWaitingPurchasesListed) {
    Session s = session();
    ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO tblDocumentH (Code) VALUES (1)")));
    const qint64 voucher = s.scalarInt64(QStringLiteral("SELECT MAX(ID) FROM tblDocumentH"));
    const qint64 linked = addPartyDocument(kPurchase, 1, 100, 0, voucher);
    const qint64 orphan = addPartyDocument(kPurchase, 1, 200, 0, voucher + 100);
    const qint64 waiting = addPartyDocument(kPurchaseReturn, 1, 300, 0);
    addPartyDocument(kSale, 1, 400, 0);                       // no purchase
    addPartyDocument(kPurchase, 1, 500, 0, std::nullopt, 2);  // not ordinary
    VoucherLinks links(db());
    EXPECT_EQ(links.releaseOrphans(), 1);
    EXPECT_EQ(links.releaseOrphans(), 0);
    QList<qint64> codes;
    for (const VoucherLinks::WaitingDocument& w : links.waiting()) {
        codes << w.code;
        EXPECT_EQ(w.docDate, QStringLiteral("____/__/__"));  // an empty date reads as the mask
        EXPECT_EQ(w.companyId, 1);
    }
    std::sort(codes.begin(), codes.end());
    EXPECT_EQ(codes, (QList<qint64>{orphan, waiting}));
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT DocumentHID FROM Whs_QTYDocH WHERE Code = :c"),
                            {{QStringLiteral(":c"), linked}}),
              voucher);
}

SANDOGH_INSTANTIATE_BACKENDS(PartyBalanceTest);

}  // namespace
}  // namespace sandogh
